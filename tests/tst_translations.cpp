// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "support/test_support.h"

#include <QtCore/QTranslator>

using namespace my_classes;
using namespace Qt::StringLiterals;
using namespace test_support;

namespace {

/// Marks every text that goes through translation; Qt's own, too.
class PseudoTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *source, const char *, int) const override
    {
        return u"‹%1›"_s.arg(QString::fromUtf8(source));
    }
};

/// What a person sees, hovers over or hears of `widget` and what is in it.
QStringList texts_of(QWidget *widget)
{
    QStringList texts;
    QList<QWidget *> widgets = widget->findChildren<QWidget *>();
    widgets.append(widget);
    for (QWidget *part : std::as_const(widgets)) {
        for (const char *property :
             {"windowTitle", "toolTip", "statusTip", "accessibleName", "accessibleDescription", "placeholderText"})
            texts << part->property(property).toString();
        if (qobject_cast<QLabel *>(part) || qobject_cast<QAbstractButton *>(part))
            texts << part->property("text").toString();
        if (const auto *bar = qobject_cast<QStatusBar *>(part))
            texts << bar->currentMessage();
        for (const QAction *action : part->actions())
            texts << action->text() << action->toolTip();
    }
    return texts;
}

/// Those texts of `widget` that hold a word and went through no translation.
QStringList left_out(QWidget *widget)
{
    const QRegularExpression word(u"\\p{L}{2}"_s);
    QStringList left;
    for (const QString &text : texts_of(widget)) {
        if (text.contains(word) && !text.contains(u'‹') && !left.contains(text))
            left << text;
    }
    return left;
}

/// Runs `action`, which opens a modal dialog, and gives back what that leaves out.
QStringList left_out_of_dialog(const std::function<void()> &action)
{
    QStringList left{u"no dialog"_s};
    answer_next_dialog([&left](QDialog *dialog) {
        left = left_out(dialog);
        dialog->reject();
    });
    action();
    return left;
}

} // namespace

class TstTranslations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { fail_on_warnings(); }

    void catalogues()
    {
        const auto texts = [] {
            CustomTextEditor editor(std::nullopt);
            editor.set_text_content(u"One. Two words."_s);
            QMainWindow window;
            auto *tabs = new EditableTabWidget;
            window.setCentralWidget(tabs);
            tabs->addTab(new QWidget, u"One"_s);
            tabs->editTabTitle(0);
            tabs->line_edit->clear();
            tabs->finishEditTabTitle(0);
            return QStringList{DownloadDialog(u"none:"_s, {}, {}).windowTitle(), window.statusBar()->currentMessage(),
                               editor.word_count_label->text()};
        };
        const QStringList plain{u"Download File"_s, u"El título de la pestaña no puede estar vacío."_s,
                                u"Lang: EN | 2 sentences | 3 words | 15 characters"_s};
        QCOMPARE(texts(), plain);
        const auto back = qScopeGuard([] { install_translation(QLocale::c()); });
        QVERIFY(install_translation(QLocale(u"en_GB"_s))); // whose plural forms are those without a catalogue
        QCOMPARE(texts(), (QStringList{plain[0], u"The title of the tab cannot be empty."_s, plain[2]}));
        QVERIFY(install_translation(QLocale(u"es_MX"_s)));
        QCOMPARE(texts().mid(0, 2), (QStringList{u"Descargar archivo"_s, plain[1]}));
        QVERIFY(texts()[2] != plain[2]);
        DownloadDialog failing(u"none:"_s, {}, {});
        QTRY_COMPARE(failing.outcome(), DownloadOutcome::Failed);
        QCOMPARE(failing.error_text(), u"Falta el nombre del archivo."_s);
        QVERIFY(!install_translation(QLocale(u"tlh"_s))); // the texts without any catalogue
        QCOMPARE(texts(), plain);
    }

    void no_text_is_left_out()
    {
        MainWindow window;
        window.show();
        window.text_editor->set_text_content(u"A chaptre."_s);
        window.text_editor->check_spelling();
        SearchDialog search(window.text_editor->text_edit);
        search.search_input->setText(u"nowhere"_s);
        ImageSizeInputDialog size(16, 9);
        DownloadDialog failed(u"none:"_s, {}, {});
        failed.setWindowTitle(u"The host's"_s);
        QTRY_COMPARE(failed.labelText(), u"Error en la descarga"_s);

        PseudoTranslator translator; // a language that comes while all this is in sight
        QCoreApplication::installTranslator(&translator);
        QCoreApplication::sendPostedEvents();
        QCOMPARE(failed.windowTitle() + failed.labelText(), u"The host's‹Error en la descarga›"_s);
        QCOMPARE(left_out(&window) + left_out(&search) + left_out(&size), QStringList());
        QMainWindow host;
        auto *tabs = new EditableTabWidget;
        host.setCentralWidget(tabs);
        tabs->addTab(new QWidget, u"1"_s);
        tabs->addTab(new QWidget, u"2"_s);
        tabs->editTabTitle(0);
        tabs->line_edit->setText(u"2"_s);
        tabs->finishEditTabTitle(0);
        QCOMPARE(left_out(&host), QStringList());
        const std::function<void()> dialogs[] = {[&] { window.text_editor->insert_table(); },
                                                 [&] { search.find_next(); },
                                                 [&] { search.find_all_matches(); },
                                                 [&] { search.replace_all(); },
                                                 [&] { tabs->closeTab(0); },
                                                 [&] { tabs->msgbox_confirm(u"?"_s); }};
        for (const auto &open : dialogs)
            QCOMPARE(left_out_of_dialog(open), QStringList());
        DownloadDialog failing(u"none:"_s, {}, {});
        QCOMPARE(left_out(&failing), QStringList());
        QTRY_COMPARE(failing.labelText(), u"‹Error en la descarga›"_s);
        QCOMPARE(left_out(&failing), QStringList());
        DownloadDialog cancelled(u"none:"_s, {}, {});
        cancelled.cancel();
        QCOMPARE(left_out(&cancelled), QStringList());

        QCoreApplication::removeTranslator(&translator);
        QCoreApplication::sendPostedEvents();
        QCOMPARE(window.text_editor->action(EditorCommand::RemoveRows)->text(), u"Remove Rows"_s);
    }
};

MY_CLASSES_TEST_MAIN(TstTranslations)
#include "tst_translations.moc"
