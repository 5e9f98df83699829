// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QPointer>
#include <QtCore/QString>
#include <QtWidgets/QLineEdit>

QT_BEGIN_NAMESPACE
class QStatusBar;
class QTabWidget;
QT_END_NAMESPACE

namespace my_classes {

/// The field in which the title of a page is edited, over its tab. A child of the tab widget.
class TitleField : public QLineEdit
{
    Q_OBJECT

public:
    TitleField(QTabWidget *tabs, int index);

    /// The position of the page, wherever it has moved; -1 if it has been removed.
    int index() const;
    void follow_tab();
    /// Tells in red, and in the status bar, what is wrong with the title. The field may be gone afterwards.
    void refuse(const QString &reason);
    /// The same.
    void take_message_back();

private:
    QTabWidget *const m_tabs;
    const QPointer<QWidget> m_page;
    QPointer<QStatusBar> m_status_bar; // that shows m_message
    QString m_message;
};

} // namespace my_classes
