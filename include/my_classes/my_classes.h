// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

/// Everything public of my_classes.

#include <my_classes/app_directory.h>
#include <my_classes/custom_highlighter.h>
#include <my_classes/custom_tab.h>
#include <my_classes/custom_text_editor.h>
#include <my_classes/diagnostic_output.h>
#include <my_classes/download_dialog.h>
#include <my_classes/editable_tab_widget.h>
#include <my_classes/editor_command.h>
#include <my_classes/editor_counts.h>
#include <my_classes/export.h>
#include <my_classes/file_downloader.h>
#include <my_classes/image_size_input_dialog.h>
#include <my_classes/main_window.h>
#include <my_classes/my_msgboxes.h>
#include <my_classes/my_spellchecker.h>
#include <my_classes/my_utils.h>
#include <my_classes/search_dialog.h>
#include <my_classes/table_dimension_input_dialog.h>
#include <my_classes/translations.h>
#include <my_classes/version.h>
