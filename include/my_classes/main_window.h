// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <my_classes/export.h>

#include <QtWidgets/QMainWindow>

namespace my_classes {

class CustomTextEditor;

/// The smallest host of an editor: one window, filled by it. Throws as MySpellChecker does.
class MY_CLASSES_EXPORT MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// 800 by 600 pixels, with a 20-point font and the language "en".
    MainWindow();

    /// The editor, owned by the window.
    CustomTextEditor *text_editor = nullptr;
};

} // namespace my_classes
