// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

// Inserting a table, its dialog included, against QTextCursor::insertHtml() of the same fragment.

#include "measure.h"

#include <my_classes/custom_text_editor.h>
#include <my_classes/table_dimension_input_dialog.h>

#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>

namespace {

using my_classes::CustomTextEditor;

constexpr int k_rows = 100;
constexpr int k_columns = 20;

QString fragment()
{
    const QString cell = QStringLiteral("<td contenteditable='true' style='border: 1px solid black; min-width: 200px; "
                                        "min-height: 30px; padding: 8px;'></td>");
    const QString row = QStringLiteral("<tr>") + cell.repeated(k_columns) + QStringLiteral("</tr>");
    return QStringLiteral(
               "\n            <table border=\"1\" style=\"border: 1px solid black; border-collapse: collapse; "
               "width: 100%;\">\n                ") +
           row.repeated(k_rows) + QStringLiteral("\n            </table>\n        ");
}

void insert_through_dialog(CustomTextEditor *editor)
{
    QTimer::singleShot(0, editor, [] {
        auto *dialog = qobject_cast<my_classes::TableDimensionInputDialog *>(QApplication::activeModalWidget());
        dialog->input1->setText(QString::number(k_rows));
        dialog->input2->setText(QString::number(k_columns));
        dialog->accept();
    });
    editor->insert_table();
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    CustomTextEditor ours({});
    CustomTextEditor theirs({});
    QTextEdit plain;
    for (QWidget *widget :
         {static_cast<QWidget *>(&ours), static_cast<QWidget *>(&theirs), static_cast<QWidget *>(&plain)}) {
        widget->resize(1000, 800);
        widget->show();
    }
    const auto empty = [&] {
        for (QTextEdit *area : {ours.text_edit, theirs.text_edit, &plain})
            area->clear();
        QCoreApplication::processEvents();
    };
    const QString html = fragment();
    const auto insert_into = [&](QTextEdit *area) { return [&html, area] { area->textCursor().insertHtml(html); }; };
    const auto compare = [&](const QString &what, QTextEdit *other) {
        std::vector<double> our_times;
        std::vector<double> other_times;
        for (int round = 0; round < 15; ++round) {
            empty();
            our_times.push_back(bench::milliseconds([&] { insert_through_dialog(&ours); }));
            other_times.push_back(bench::milliseconds(insert_into(other)));
        }
        if (ours.text_edit->toHtml() != theirs.text_edit->toHtml() && other == theirs.text_edit)
            qFatal("the tables differ");
        bench::print_row(what, {bench::median(our_times), bench::median(other_times)}, 1.2);
    };

    bench::print_header("ours, ms", "Qt, ms");
    compare(QStringLiteral("table of 100 by 20, against insertHtml() in an editor"), theirs.text_edit);
    compare(QStringLiteral("table of 100 by 20, against insertHtml() in a QTextEdit"), &plain);
}
