// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <my_classes/editor_command.h>
#include <my_classes/editor_counts.h>
#include <my_classes/export.h>
#include <my_classes/my_spellchecker.h>
#include <my_classes/search_dialog.h>

#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtCore/QSet>
#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtGui/QFont>
#include <QtGui/QKeySequence>
#include <QtGui/QTextCharFormat>
#include <QtGui/QTextListFormat>
#include <QtWidgets/QTextEdit>
#include <QtWidgets/QWidget>

#include <functional>
#include <memory>
#include <optional>
#include <type_traits>
#include <vector>

QT_BEGIN_NAMESPACE
class QAction;
class QBoxLayout;
class QComboBox;
class QFontComboBox;
class QImage;
class QLabel;
class QPagedPaintDevice;
class QToolBar;
class QWheelEvent;
QT_END_NAMESPACE

namespace my_classes {

class CustomHighlighter;
class DocumentStatistics;
class EditState;
class PictureHandling;
class TypingFormat;
class WordMarker;
class WritingColours;

/// A rich-text editor: tool bar, text area, statistics line and zoom, with spell checking.
///
/// The widgets and actions are public and owned by the editor; hosts may read and connect to them. GUI thread only.
///
/// Where an editor is shown its text has the focus, unless the host or the person has given the focus to something
/// else.
///
/// Keys, of the editor that has the focus: Ctrl+P print, Ctrl+B, Ctrl+I and Ctrl+U bold, italic and underlined, F7
/// check spelling, F8 clear the formatting of the selection, the platform's keys for undo and redo;
/// set_shortcuts_enabled() takes these away. Besides, Alt+F10 goes to the tool bar and Escape back; Tab and Shift+Tab
/// move from cell to cell in a table and change the level at the start of a list item; elsewhere Tab writes a tab and
/// Shift+Tab goes to the tool bar. Ctrl with the wheel zooms. The text area keeps QTextEdit's own keys.
class MY_CLASSES_EXPORT CustomTextEditor : public QWidget
{
    Q_OBJECT

public:
    /// Without a `font` the editor uses 12-point "Times new roman". `lang` is the spelling language, as of
    /// MySpellChecker; throws std::runtime_error as its constructor does.
    explicit CustomTextEditor(const std::optional<QFont> &font, QWidget *parent = nullptr,
                              const QString &lang = QStringLiteral("en"));
    /// For forms: the default font, and the language "en", or none where that has no dictionary. Does not throw.
    template<typename Parent, typename = std::enable_if_t<std::is_convertible_v<Parent, QWidget *>>>
    explicit CustomTextEditor(Parent parent) // a template, so that CustomTextEditor({}) means what it did
        : CustomTextEditor(ForForms(0), parent)
    {
    }
    ~CustomTextEditor() override;

    // Commands for a host's menus, and its keys.

    /// The action of `command`, the same one as in the tool bar; owned by the editor, never null. Its object name is
    /// the command's name with "_action", such as "bold_action".
    QAction *action(EditorCommand command) const;
    /// Off takes every shortcut of the editor's actions away, so that the host's own work; on (as at first) gives them
    /// back. Alt+F10 and the keys of the text area itself stay.
    void set_shortcuts_enabled(bool enabled);
    /// Whether set_shortcuts_enabled() has left them on.
    bool shortcuts_enabled() const;

    /// Read-only, every command that would write is disabled or does nothing; the same as text_edit->setReadOnly().
    void set_read_only(bool read_only);
    /// Whether the text area is read-only.
    bool is_read_only() const;

    /// Builds the window; the constructor does. Called again it does nothing but warn in the log.
    void initUI();
    /// Fills the tool bar; the constructor does. Called again it does nothing but warn in the log.
    void add_toolbar_buttons();

    // Zoom. The percentage is the editor's own count: a step is one point of text size and ten per cent.

    /// One step larger, unless zoom_percent has reached zoom_max_percent.
    void zoom_in();
    /// One step smaller, unless zoom_percent has reached zoom_min_percent.
    void zoom_out();
    /// Applies (percent - 100) / 10 steps, truncated, on top of the present zoom and shows `percent`. Any value is
    /// taken, also outside zoom_min_percent and zoom_max_percent.
    void set_zoom_percent(int percent);
    /// Shows zoom_percent in the label.
    void update_zoom_label();
    /// Zooms one step if Ctrl is held, otherwise scrolls the text area.
    void wheel_event(QWheelEvent *event);

    // Formatting of the selection, or of the word under the cursor.

    /// Merges `format` into the selection, or into the word under the cursor, and into what is typed next.
    void merge_format_on_selection(const QTextCharFormat &format);
    /// These three follow the checked state of the action that sent the signal; called directly they only warn.
    void set_bold();
    /// As set_bold().
    void set_italic();
    /// As set_bold().
    void set_underline();
    /// Sets the family and gives the focus to the text.
    void set_font_family(const QString &family);
    /// Size in points, as text or number. A text that is no number, or a size that is not finite and positive,
    /// changes nothing but for a warning in the log.
    void set_font_size(const QString &size);
    /// The size in points, as above.
    void set_font_size(double size);
    /// Aligns the paragraphs of the selection, or the one at the caret.
    void set_alignment(Qt::Alignment alignment);
    /// Sets the line height of every paragraph and leaves the whole document selected.
    void set_line_spacing(double factor);
    /// Takes the character format off the selection. Images stay.
    void clear_formatting();
    /// Shows in the tool bar whether the text at the caret is bold, italic and underlined.
    void update_format_buttons();
    /// Shows family and size at the caret in the font boxes.
    void update_font_combos();
    /// Enables what a selection makes possible and counts it.
    void selection_changed();

    // Insertions, each one undo step. The last two ask in modal dialogs, which the editor may die under.

    /// The paragraphs of the selection become a new list; without a selection a new paragraph starts one.
    void insert_numbered_list();
    /// As insert_numbered_list(), with round bullets.
    void insert_bullet_list_disc();
    /// As insert_numbered_list(), with square bullets.
    void insert_bullet_list_square();
    /// Asks for rows and columns. A cancelled dialog, an empty field or more than 100,000 cells insert nothing.
    void insert_table();
    /// Asks for a file and a size in pixels, and embeds the picture as PNG. A cancelled dialog or a size beyond 512
    /// megabytes of pixels inserts nothing; a file that is no picture, an empty one.
    void insert_image();
    /// Inserts the table that the dialog of insert_table() would. False, and nothing inserted, if a number is negative,
    /// the table is larger than 100,000 cells, or the text is read-only.
    bool insert_table_of_size(int rows, int columns);
    /// Embeds `picture` as PNG, scaled to `size` in pixels if that is valid. False, and nothing inserted, if the
    /// picture is null, larger than 512 megabytes of pixels, or the text is read-only.
    bool insert_picture(const QImage &picture, const QSize &size = {});

    // Rows and columns of the table at the caret, or of its selected cells; each one undo step. Outside a table they do
    // nothing. Removing all rows or columns removes the table.

    /// A row above the one at the caret.
    void insert_row_above();
    /// A row below the one at the caret.
    void insert_row_below();
    /// A column before the one at the caret.
    void insert_column_before();
    /// A column after the one at the caret.
    void insert_column_after();
    /// Removes the row at the caret, or those of the selected cells.
    void remove_rows();
    /// Removes the column at the caret, or those of the selected cells.
    void remove_columns();

    // Content.

    /// The document as HTML, at its unzoomed size.
    QString get_html_content() const;
    /// The document as plain text; paragraphs are separated by line feeds.
    QString get_text_content() const;
    /// Replaces the document by HTML. It cannot be undone.
    void set_html_content(const QString &content);
    /// HTML if it looks like HTML, otherwise plain text.
    void set_text_content(const QString &content);
    /// Paragraphs are separated by U+2029.
    QString get_selected_text() const;
    /// Starts a paragraph behind the selection and inserts the HTML there. Does nothing without a selection.
    void insert_after_selection(const QString &text);
    /// Replaces the selection by HTML; an empty text removes it. Does nothing without a selection.
    void replace_selected_text(const QString &text);
    /// Inserts the text of the clipboard without its format.
    void paste_plain_text();
    /// Asks for a printer and prints the document, unzoomed and without spelling underlines.
    void print_document();
    /// Prints as print_document() does, without asking: unzoomed, without spelling underlines, pictures no larger than
    /// the page. An empty `title` leaves the device's own. The device is not taken over.
    void print_to(QPagedPaintDevice *device, const QString &title = {}) const;
    /// Prints several editors into one document, each from a new page on. Null editors are left out.
    static void print_all_to(QPagedPaintDevice *device, const QList<const CustomTextEditor *> &editors,
                             const QString &title = {});

    /// True after an edit by the person or the host; checking, marking, search marks and zooming are none. Undoing to
    /// the saved state makes it false again.
    bool is_modified() const;
    /// A host calls it with false after saving or loading.
    void set_modified(bool modified);

    // Statistics of the selection or, without one, of the document.

    /// Counts again and shows it; the editor calls it after every change.
    void count_words();
    /// What the statistics line shows, as numbers.
    EditorCounts counts() const;
    /// Number of sentences in `text`: pieces between '.', '!' or '?' that hold more than white space. "A.B" gives 2,
    /// "..." gives 0.
    int count_sentences(const QString &text) const;
    /// Does nothing; kept for hosts that call it.
    void count_lines(const QVariant &text_edit);

    // Spelling.

    /// Underlines the misspelled words of the document and emits check_spelling_done().
    void check_spelling();
    /// Moves the cursor to the first word of the document that is in `misspelled`, or to the last word.
    void show_first_misspelled(const QSet<QString> &misspelled);
    /// Brings the format buttons, the font boxes and the suggestions up to the caret; the editor calls it when that
    /// moves.
    void update_from_cursor();
    /// Offers suggestions for the word at the caret, if the last check found it misspelled. In lower case: a word with
    /// capitals is offered none here.
    void update_suggestions();
    /// Replaces the word at the caret by the suggestion chosen, in its format and as one undo step.
    void correct_word();
    /// Adds the word at the caret to the person's word list, emits word_added_to_dictionary() and checks again.
    void add_word_to_dictionary();
    /// Limpia el resaltado de todas las palabras en el documento.
    void clear_highlights();

    /// Changes checker, label and `lang` together and takes the underlines away (they are made anew where words are
    /// marked while writing). An empty `lang` means no spelling: nothing is checked or suggested, `spellchecker` is
    /// null. Throws std::runtime_error as MySpellChecker does, and changes nothing then.
    void set_lang(const QString &lang);

    // Words, for a context menu of the host's. A word is what the suggestion box takes for one.

    /// A cursor that selects the word at `cursor`; without a selection if there is none.
    QTextCursor word_at(const QTextCursor &cursor) const;
    /// The same at `point` of the viewport of the text area, in pixels.
    QTextCursor word_at_point(const QPoint &point) const;
    /// Whether the dictionary, the person's list and this editor's ignored words all lack `word`; also before any
    /// check. False without spelling.
    bool is_misspelled(const QString &word) const;
    /// Replacements, best first, with the capitals of `word`; empty if there are none.
    QStringList suggestions_for(const QString &word) const;
    /// Replaces the text that `word` selects, in its format, as one undo step.
    void replace_word(const QTextCursor &word, const QString &replacement);
    /// Adds `word` to the person's word list, emits word_added_to_dictionary() and takes its underlines away.
    void add_to_dictionary(const QString &word);
    /// Takes `word` for right in this editor, until it goes.
    void ignore_word(const QString &word);

    /// Whether words are marked while the person writes; off at first. What is typed is checked a moment after the
    /// caret has left the word or the typing pauses; pasted and loaded text in slices. Never the word being typed. The
    /// marks are those of check_spelling(), which may still be called. Switching it off takes them away. It stays on,
    /// and does nothing, without spelling.
    void set_marking_while_writing(bool on);
    /// Whether set_marking_while_writing() is on.
    bool is_marking_while_writing() const;

    /// Opens a new find-and-replace dialog in place of the earlier one.
    void search_text();

    /// The spelling language, as given. Assigning it changes the label at the next count and nothing else: use
    /// set_lang().
    QString lang;
    /// The font that the editor was made with. Assigning it changes nothing; text_edit->setFont() does.
    QFont editor_font;
    /// The tool bar, owned by the editor.
    QToolBar *toolbar = nullptr;
    /// The text area, owned by the editor. A host may give it another document.
    QTextEdit *text_edit = nullptr;
    /// The statistics line.
    QLabel *word_count_label = nullptr;
    /// The checker of `lang`; null without spelling. A checker assigned here is used from then on, but neither the
    /// label nor `lang` follow: use set_lang().
    std::unique_ptr<my_spellchecker::MySpellChecker> spellchecker;
    /// Underlines the misspelled words; owned by the editor. It follows a document that the host replaces.
    CustomHighlighter *highlighter = nullptr;
    /// Shows zoom_percent.
    QLabel *zoom_label = nullptr;
    int zoom_min_percent = 0;   ///< zoom_out() stops here.
    int zoom_max_percent = 200; ///< zoom_in() stops here.
    /// The editor's own count. Assigning it zooms nothing: use set_zoom_percent().
    int zoom_percent = 100;
    /// Kept for hosts: emptied by clear_highlights(), filled by nobody. The results of a search are
    /// SearchDialog::search_results.
    QList<int> search_results;
    /// Kept for hosts: set to -1 by clear_highlights().
    int current_search_index = -1;

    /// This and the other actions are those of action(), owned by the editor.
    QAction *bold_action = nullptr;
    /// EditorCommand::Italic.
    QAction *italic_action = nullptr;
    /// EditorCommand::Underline.
    QAction *underline_action = nullptr;
    /// Shows the family at the caret. Disabled and not connected: a host that wants it to set the family does both.
    QFontComboBox *font_combo = nullptr;
    /// Shows the size at the caret, in points; as font_combo.
    QComboBox *font_size_combo = nullptr;
    /// EditorCommand::ClearFormatting.
    QAction *clear_formatting_action = nullptr;
    /// EditorCommand::CheckSpelling.
    QAction *checkAction = nullptr;
    /// The suggestions for the word at the caret, sorted; the best one is chosen.
    QComboBox *suggestionsComboBox = nullptr;
    /// EditorCommand::Correct.
    QAction *correctAction = nullptr;
    /// EditorCommand::AppendToDictionary.
    QAction *addWordAction = nullptr;

    /// The dialog that search_text() opened last, owned by the editor; null before.
    QPointer<SearchDialog> search_dialog;

Q_SIGNALS:
    /// `word` was added to the person's word list.
    void word_added_to_dictionary(const QString &word);
    /// check_spelling() has found these words, each once.
    void check_spelling_done(const QSet<QString> &misspelled);
    /// The statistics line shows other numbers. The host may delete the editor for it: the text area then ends what it
    /// was doing, and goes with the next events.
    void counts_changed(const my_classes::EditorCounts &counts);
    /// zoom_percent is another one, by the person or the host.
    void zoom_changed(int percent);
    /// is_modified() has changed. The host may delete the editor for it, as for counts_changed().
    void modified_changed(bool modified);
    /// The text area has become read-only, or is so no longer.
    void read_only_changed(bool read_only);
    /// By set_lang().
    void lang_changed(const QString &lang);

protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    friend class CustomTab;
    friend class WordMarker;

    struct ForForms
    {
        explicit ForForms(int) {} // so that {} is none
    };
    CustomTextEditor(ForForms, QWidget *parent);

    struct CommandAction
    {
        QAction *action;
        const char *text;              // untranslated
        QList<QKeySequence> shortcuts; // while they are taken away
    };
    friend class ToolbarBuilder;

    QAction *make_action(EditorCommand command, const char *name, const char *text);
    void add_text_buttons();
    void add_paragraph_buttons();
    void add_spelling_buttons();
    void add_insertion_buttons();
    void add_table_commands();
    void update_table_commands();
    void retranslate();
    bool embed_picture(const QImage &picture, const QSize &shown_size);
    void create_toolbar(QBoxLayout *column);
    void create_text_area(QBoxLayout *column);
    void create_status_row(QBoxLayout *column);
    QLabel *create_read_only_label();
    void enable_writing(bool enabled);
    void add_font_boxes();
    void add_suggestions_box();
    void follow_document();
    void attach_to_document();
    void follow_undo();
    void follow_lost_selection();
    void show_counts(const EditorCounts &counts);
    void tell(const std::function<void()> &emit_signal);
    bool has_selected_text() const;
    void apply_font_size(double points);
    void zoom_by(int points);
    void show_zoom_percent(int percent);
    void load(const QString &content, void (QTextEdit::*as)(const QString &));
    bool is_zoomed() const;
    double zoom_scale() const;
    void move_zoom(QTextDocument *from, QTextDocument *to);
    void zoom_document(QTextDocument *document, const QFont &own);
    QFont unzoomed_font() const;
    QFont unzoomed_font(const QTextDocument *document) const;
    void insert_list(QTextListFormat::Style style);
    void start_spelling(const QString &language);
    void enable_spelling();
    bool is_ignored(const QString &word) const;
    void take_underlines_away(const QString &word);

    std::vector<CommandAction> m_commands; // by EditorCommand
    bool m_shortcuts_enabled = true;
    WritingColours *m_colours = nullptr;
    std::unique_ptr<DocumentStatistics> m_statistics;
    std::unique_ptr<PictureHandling> m_pictures;
    std::unique_ptr<EditState> m_edit_state;
    EditorCounts m_counts;
    bool m_lost_selection = false; // by undo, which the text area has not noticed
    bool m_is_telling = false;     // the host, below a signal of the document
    QFont m_unzoomed_font;         // the text area's, before zooming
    double m_zoomed_size = 0;      // its size in points after the last zoom step
    double m_documents_size = 0;   // that of a document with a font of its own, before zooming
    qint64 m_zoom_steps = 0;       // since then, those that Qt refused included
    std::unique_ptr<TypingFormat> m_typing_format;
    QString m_checker_lang;        // what the checker was made with; hosts may assign `lang`
    QPointer<WordMarker> m_marker; // belongs to the highlighter
    QSet<QString> m_ignored_words; // in the form that all their capitals share
};

} // namespace my_classes
