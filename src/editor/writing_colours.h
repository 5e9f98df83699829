// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtGui/QColor>
#include <QtGui/QPalette>

#include <optional>

QT_BEGIN_NAMESPACE
class QTextEdit;
class QWidget;
QT_END_NAMESPACE

namespace my_classes {

/// Keeps a text area, which wears a style sheet and thus inherits no colours, in those of the widget that it stands in,
/// with its window colour as base. A base that the host sets on the text area stays.
class WritingColours : public QObject
{
    Q_OBJECT

public:
    /// Belongs to `area`.
    WritingColours(QTextEdit *area, const QWidget *surroundings);

    /// To be called when the colours of the surroundings change.
    void wear();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void palette_changed(const QWidget *part);
    void settle_base_of_host();
    void settle();
    bool is_own(const QPalette &palette) const;
    void dress_parts();

    QTextEdit *m_area;
    const QWidget *m_surroundings;
    QList<QColor> m_own_bases;           // so far; style sheets bring earlier ones back
    std::optional<QPalette> m_of_host;   // holds the base that the host has set
    std::optional<QPalette> m_unsettled; // seen last: of the host, unless a style sheet turns out to be behind it
    bool m_polishing = false;
    bool m_wearing = false;
};

} // namespace my_classes
