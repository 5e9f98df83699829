// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include "support/test_support.h"

#include <csignal>
#include <sys/resource.h>
#include <utility>

/// Files of this process cannot grow beyond a size while this lives, as on a full disk.
class FullDisk
{
public:
    explicit FullDisk(rlim_t size)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_limit);
        const rlimit small = {size, m_limit.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &m_limit); }

private:
    rlimit m_limit = {};
};

/// Answers the modal windows that come, one after the other: a box by the text of a button, a file dialog by a path.
class Answers : public QObject
{
public:
    explicit Answers(const QStringList &answers)
        : m_left(answers)
    {
        connect(&m_timer, &QTimer::timeout, this, &Answers::give_next);
        m_timer.start(60);
    }

    bool all_given() const { return m_left.isEmpty(); }
    /// The texts of the boxes.
    QString asked() const { return m_asked.join(u'|'); }

private:
    void give_next()
    {
        QWidget *dialog = QApplication::activeModalWidget();
        if (dialog != std::exchange(m_seen, dialog) || !dialog || dialog == m_last || m_left.isEmpty())
            return; // a file dialog takes a moment to read its folder, and puts its own name into the field then
        m_last = dialog;
        if (auto *box = qobject_cast<QMessageBox *>(dialog)) {
            m_asked.append(box->text());
            press(box, m_left.takeFirst());
        } else if (auto *field = dialog->findChild<QLineEdit *>()) { // others go by themselves
            field->setText(m_left.takeFirst());
            QMetaObject::invokeMethod(static_cast<QDialog *>(dialog), &QDialog::accept, Qt::QueuedConnection);
        }
    }

    static void press(const QMessageBox *box, const QString &text)
    {
        const auto buttons = box->buttons();
        for (QAbstractButton *button : buttons) {
            if (button->text().remove(u'&') == text)
                QMetaObject::invokeMethod(button, &QAbstractButton::click, Qt::QueuedConnection);
        }
    }

    QStringList m_left;
    QStringList m_asked;
    QPointer<QWidget> m_seen;
    QPointer<QWidget> m_last;
    QTimer m_timer;
};
