// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QPointer>
#include <QtWidgets/QTextEdit>

namespace my_classes {

class CustomTextEditor;
class StillView;

/// The editor's text area: gives every wheel event to the editor first, moves in tables and list levels by Tab and
/// Shift+Tab and leaves by Shift+Tab elsewhere, embeds pictures that are pasted or dropped, and opens no devices or
/// pipes that a document names as pictures or style sheets.
class TextArea : public QTextEdit
{
    Q_OBJECT

public:
    explicit TextArea(CustomTextEditor *editor);

    /// The wheel handling of QTextEdit itself.
    void scroll_by_wheel(QWheelEvent *event);

    /// Leaves to Qt what the document embeds and ordinary files; stands in for anything else that it names.
    QVariant loadResource(int type, const QUrl &name) override;

    /// Room for three lines of about twenty characters.
    QSize minimumSizeHint() const override;

protected:
    bool canInsertFromMimeData(const QMimeData *source) const override;
    void insertFromMimeData(const QMimeData *source) override;
    bool event(QEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    bool move_by_tab(int step);
    void hide_overshoot(int maximum);
    void tell_of_caret();
    void fill_background();
    void fill_background_after(const QEvent *event);
    QString local_path(const QUrl &name) const;

    QPointer<CustomTextEditor> m_editor; // may die first
    StillView *m_still_view;
    bool m_hides_overshoot = false;
};

} // namespace my_classes
