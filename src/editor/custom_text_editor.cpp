// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "editor/document_statistics.h"
#include "editor/edit_state.h"
#include "editor/embedded_pictures.h"
#include "editor/language_for_forms.h"
#include "editor/log.h"
#include "editor/status_label.h"
#include "editor/text_area.h"
#include "editor/text_focus.h"
#include "editor/typing_format.h"
#include "editor/wrapping_tool_bar.h"
#include "editor/writing_colours.h"
#include "frame/quiet.h"
#include "spelling/word_marker.h"

#include <my_classes/custom_highlighter.h>
#include <my_classes/custom_text_editor.h>

#include <QtCore/QSignalBlocker>
#include <QtGui/QAction>
#include <QtGui/QShortcut>
#include <QtGui/QShowEvent>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QFontComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include <utility>

namespace my_classes {

using namespace Qt::StringLiterals;

namespace {

constexpr int k_side_margin = 70;      // pixels
constexpr int k_icon_size = 16;        // pixels
constexpr int k_zoom_button_size = 25; // pixels

QPushButton *zoom_button(const QString &text, const QString &name)
{
    auto *button = new QPushButton(text);
    button->setObjectName(name);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    button->setMaximumSize(k_zoom_button_size, k_zoom_button_size);
    button->setEnabled(true);
    button->setFocusPolicy(Qt::TabFocus); // a click leaves the focus in the text
    return button;
}

} // namespace

CustomTextEditor::CustomTextEditor(const std::optional<QFont> &font, QWidget *parent, const QString &language)
    : QWidget(parent)
    , lang(language)
    , editor_font(font.value_or(QFont(u"Times new roman"_s, 12)))
{
    initUI();
}

CustomTextEditor::~CustomTextEditor()
{
    delete search_dialog.data();
    if (m_is_telling) { // what the text area and its document are doing goes on
        text_edit->blockSignals(true);
        text_edit->setParent(nullptr);
        text_edit->deleteLater();
    }
}

/// The host may delete the editor for what it hears, in the middle of an edit.
void CustomTextEditor::tell(const std::function<void()> &emit_signal)
{
    const QPointer<CustomTextEditor> here(this);
    const bool was_telling = std::exchange(m_is_telling, true);
    emit_signal();
    if (here)
        m_is_telling = was_telling;
}

CustomTextEditor::CustomTextEditor(ForForms, QWidget *parent)
    : CustomTextEditor(std::nullopt, parent, language_for_forms())
{
}

void CustomTextEditor::initUI()
{
    if (text_edit) {
        qCWarning(log_editor, "initUI(): the editor is built already");
        return;
    }
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(k_side_margin, 0, k_side_margin, 0);
    create_toolbar(column);
    create_text_area(column);
    create_status_row(column);
    add_toolbar_buttons();
    enable_spelling();
    setFocusProxy(text_edit);
    // Where pages are shown in turn, each gives the focus to the child that had it last.
    if (!parentWidget())
        text_edit->setFocus();
}

void CustomTextEditor::create_toolbar(QBoxLayout *column)
{
    auto *bar = new WrappingToolBar(tr("Main Toolbar"), this);
    toolbar = bar;
    toolbar->setIconSize(QSize(k_icon_size, k_icon_size));
    column->addWidget(toolbar);
    connect(bar, &WrappingToolBar::left, this, [this] { text_edit->setFocus(); });
    auto *to_toolbar = new QShortcut(Qt::ALT | Qt::Key_F10, this);
    to_toolbar->setContext(Qt::WidgetWithChildrenShortcut);
    connect(to_toolbar, &QShortcut::activated, bar, &WrappingToolBar::focus_first_item);
}

void CustomTextEditor::create_text_area(QBoxLayout *column)
{
    text_edit = new TextArea(this);
    word_count_label = new StatusLabel(this); // not without a parent: what follows may throw
    text_edit->setAutoFormatting(QTextEdit::AutoAll);
    connect(text_edit, &QTextEdit::cursorPositionChanged, this, &CustomTextEditor::update_from_cursor);
    connect(text_edit, &QTextEdit::textChanged, this, &CustomTextEditor::count_words);
    connect(text_edit, &QTextEdit::selectionChanged, this, &CustomTextEditor::selection_changed);
    connect(text_edit, &QTextEdit::cursorPositionChanged, this, &CustomTextEditor::follow_undo);
    const auto follow = [this] {
        const QPointer<CustomTextEditor> here(this);
        follow_lost_selection();
        if (!here)
            return;
        update_format_buttons();
        update_table_commands();
    };
    connect(text_edit, &QTextEdit::textChanged, this, follow, Qt::QueuedConnection);
    column->addWidget(text_edit);
    start_spelling(lang);
    {
        const QSignalBlocker quiet(text_edit);
        highlighter = new CustomHighlighter(text_edit->document());
    }
    // Hears of a new text after the highlighter: that one makes the paragraphs' layouts, which are best made together.
    attach_to_document();
    highlighter->setParent(this); // it outlives a document that the host replaces
    text_edit->setAutoFillBackground(true);
    m_colours = new WritingColours(text_edit, this);
}

void CustomTextEditor::create_status_row(QBoxLayout *column)
{
    QPushButton *zoom_in_button = zoom_button(u"+"_s, u"zoom_in_button"_s);
    QPushButton *zoom_out_button = zoom_button(u"-"_s, u"zoom_out_button"_s);
    connect(zoom_in_button, &QPushButton::clicked, this, &CustomTextEditor::zoom_in);
    connect(zoom_out_button, &QPushButton::clicked, this, &CustomTextEditor::zoom_out);
    zoom_label = new QLabel(u"100%"_s);

    auto *row = new QHBoxLayout;
    row->addWidget(new StatusPlace(static_cast<StatusLabel *>(word_count_label)), 1);
    row->addItem(new QSpacerItem(20, 20, QSizePolicy::Expanding, QSizePolicy::Minimum));
    row->addWidget(create_read_only_label());
    row->addWidget(zoom_out_button);
    row->addWidget(zoom_label);
    row->addWidget(zoom_in_button);
    column->addLayout(row);
}

/// Hosts may give the text area another document.
void CustomTextEditor::follow_document()
{
    QTextDocument *document = text_edit->document();
    if (m_statistics->document() == document)
        return;
    const Quiet quiet(text_edit); // it tells of the change as a whole
    const bool was_modified = is_modified();
    move_zoom(m_statistics->document(), document);
    attach_to_document();
    const Quiet uncounted(m_statistics.get()); // what comes next counts
    highlighter->setMisspelled({});            // those of the other document
    highlighter->setDocument(document);
    if (was_modified != is_modified())
        tell([&] { Q_EMIT modified_changed(!was_modified); });
}

/// Leaves the document before as it was found.
void CustomTextEditor::attach_to_document()
{
    QTextDocument *document = text_edit->document();
    m_statistics = std::make_unique<DocumentStatistics>(document);
    connect(m_statistics.get(), &DocumentStatistics::corrected, this, &CustomTextEditor::count_words);
    connect(m_statistics.get(), &DocumentStatistics::misreported, this, [this, document] {
        document->markContentsDirty(0, document->characterCount()); // for the layout, which comes last
        if (m_marker)
            m_marker->start_again();
        highlighter->rehighlight();
    });
    m_pictures.reset();
    m_pictures = std::make_unique<PictureHandling>(document);
    // Handlers go with the layout, unless it is handed on. A child of what goes with the document before.
    connect(document, &QTextDocument::documentLayoutChanged, m_statistics.get(), [this, document] {
        if (!m_pictures->is_at_work())
            m_pictures = std::make_unique<PictureHandling>(document);
    });
    m_edit_state = std::make_unique<EditState>(document);
    connect(m_edit_state.get(), &EditState::modified_changed, this,
            [this](bool modified) { tell([&] { Q_EMIT modified_changed(modified); }); });
    m_typing_format = std::make_unique<TypingFormat>();
    connect(document, &QTextDocument::contentsChange, m_edit_state.get(),
            [this](int, int removed, int added) { m_typing_format->note_change(removed, added); });
    connect(text_edit, &QTextEdit::cursorPositionChanged, m_edit_state.get(),
            [this] { m_typing_format->note_caret(text_edit->textCursor()); });
}

void CustomTextEditor::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    watch_tab_bar(this);
    if (!event->spontaneous() && may_take_focus(this))
        text_edit->setFocus();
}

void CustomTextEditor::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && m_colours)
        m_colours->wear();
    if (event->type() == QEvent::LanguageChange && !m_commands.empty()) {
        retranslate();
        count_words();
    }
}

} // namespace my_classes
