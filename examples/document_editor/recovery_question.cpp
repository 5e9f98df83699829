// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "recovery_question.h"

#include "opener.h"
#include "window.h"

#include <QtCore/QFileInfo>
#include <QtCore/QLocale>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

namespace document_editor {

namespace {

QString name_of(const Document &document)
{
    if (!document.origin.isEmpty())
        return QFileInfo(document.origin).fileName();
    return document.sections.isEmpty() ? QString() : document.sections.constFirst().title;
}

enum class Answer { Recover, Discard, Later };

Answer ask(const QString &text)
{
    QMessageBox box(QMessageBox::Question, QObject::tr("Recovery"), text);
    box.setTextFormat(Qt::PlainText);
    QPushButton *recover = box.addButton(QObject::tr("&Recover"), QMessageBox::AcceptRole);
    QPushButton *discard = box.addButton(QObject::tr("&Discard"), QMessageBox::DestructiveRole);
    QPushButton *later = box.addButton(QObject::tr("&Later"), QMessageBox::RejectRole);
    box.setDefaultButton(recover);
    box.setEscapeButton(later);
    box.exec();
    return box.clickedButton() == recover   ? Answer::Recover
           : box.clickedButton() == discard ? Answer::Discard
                                            : Answer::Later;
}

/// True if it is in a window now.
bool offer(std::unique_ptr<RecoveryFile> file)
{
    const QString path = file->path();
    try {
        const std::optional<Document> document = read_document(path, nullptr);
        if (!document)
            return false;
        const QString time = QLocale().toString(QFileInfo(path).lastModified(), QLocale::ShortFormat);
        const Answer answer =
            ask(QObject::tr("“%1” was not saved when the program ended. There is a copy of %2. Recover it?")
                    .arg(name_of(*document), time));
        if (answer == Answer::Discard)
            file->remove();
        if (answer != Answer::Recover)
            return false;
        auto *window = new Window(std::move(file));
        window->show_document(*document);
        window->show();
        return true;
    } catch (const FileError &error) {
        QMessageBox::warning(nullptr, QObject::tr("Recovery"),
                             QObject::tr("The copy “%1” is of no use.\n\n%2").arg(path, error.reason()));
        return false;
    }
}

} // namespace

bool offer_recovery()
{
    bool has_window = false;
    QApplication::setQuitOnLastWindowClosed(false); // that is a question
    for (std::unique_ptr<RecoveryFile> &file : RecoveryFile::left_behind())
        has_window |= offer(std::move(file));
    QApplication::setQuitOnLastWindowClosed(true);
    return has_window;
}

} // namespace document_editor
