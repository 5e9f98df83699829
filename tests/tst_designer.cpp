// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "support/test_support.h"
#include "ui_designer_form.h"

#include <QtUiTools/QUiLoader>

using namespace my_classes;
using namespace Qt::StringLiterals;

/// One form, read while the program runs and compiled into it.
class TstDesigner : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { test_support::fail_on_warnings(); }

    void loaded_form()
    {
        QUiLoader loader;
        loader.addPluginPath(QStringLiteral(MY_CLASSES_DESIGNER_DIRECTORY));
        const QStringList classes = loader.availableWidgets();
        for (const char *name : {"CustomTextEditor", "CustomTab", "EditableTabWidget"})
            QVERIFY2(classes.contains(u"my_classes::"_s + QLatin1String(name)), name);

        QFile file(QStringLiteral(MY_CLASSES_DESIGNER_FORM));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const std::unique_ptr<QWidget> form(loader.load(&file));
        QVERIFY2(form, qPrintable(loader.errorString()));
        use(form.get());
    }

    void compiled_form()
    {
        QWidget form;
        Ui::DesignerForm().setupUi(&form);
        use(&form);
    }

private:
    /// What a person does in the form.
    void use(QWidget *form)
    {
        form->show();
        auto *editor = form->findChild<CustomTextEditor *>(u"text_editor"_s);
        QVERIFY(editor);
        QCOMPARE(editor->toolTip(), u"Notes"_s);
        QTest::keyClicks(editor->text_edit, u"Written"_s);
        QCOMPARE(editor->get_text_content(), u"Written"_s);

        auto *tabs = form->findChild<EditableTabWidget *>(u"tab_widget"_s);
        QVERIFY(tabs);
        QCOMPARE(tabs->count(), 2);
        QCOMPARE(tabs->tabText(1), u"Appendix"_s);
        QVERIFY(qobject_cast<CustomTab *>(tabs->widget(0)));
        tabs->editTabTitle(0);
        QVERIFY(tabs->line_edit);
    }
};

MY_CLASSES_TEST_MAIN(TstDesigner)
#include "tst_designer.moc"
