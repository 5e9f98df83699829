// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#include "answers.h"

#include "document_file.h"
#include "files.h"
#include "importer.h"
#include "recovery_file.h"

#include <QtCore/QCryptographicHash>

using namespace Qt::StringLiterals;
using namespace document_editor;

namespace {

QString reason_of(const std::function<void()> &action)
{
    try {
        action();
    } catch (const FileError &error) {
        return error.reason();
    }
    return {};
}

bool same(const Document &a, const Document &b)
{
    const auto same_section = [](const Section &x, const Section &y) {
        return x.title == y.title && x.language == y.language && x.html == y.html && x.closed_at == y.closed_at;
    };
    return a.origin == b.origin && a.origin_stamp == b.origin_stamp &&
           std::equal(a.sections.begin(), a.sections.end(), b.sections.begin(), b.sections.end(), same_section) &&
           std::equal(a.closed.begin(), a.closed.end(), b.closed.begin(), b.closed.end(), same_section);
}

Document small_document()
{
    my_classes::CustomTextEditor editor({});
    editor.set_html_content(u"<h1>Häuser</h1><ul><li>eins</li></ul><p>中文 <b>שלום</b></p>"_s);
    return {{{u"One"_s, u"en_US"_s, editor.get_html_content()}, {u"Two"_s, u"es"_s, u"<p>two</p>"_s}}, {}};
}

} // namespace

/// The file format and the recovery files, without a window.
class TstDocumentFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { test_support::fail_on_warnings(); }

    void gives_back_every_byte()
    {
        const Document plain = small_document();
        // A section that holds the markers of the file, and one that holds another whole file.
        const QString markers =
            u"</section>\n</body>\n</html>\n<!-- blake2b-256 00 -->\n<section lang=\"\" data-bytes=\"3\">"_s;
        Document hostile = plain;
        hostile.origin = u"/home/a \"b\"/<c>&amp;\n.html"_s;
        hostile.origin_stamp = u"1764000000000-1234"_s;
        hostile.sections += {u"</h1></title><script>alert(1)</script>&amp;amp;\r\n\t "_s, {}, markers};
        hostile.sections += {u"<!-- "_s, u"\" onload=\"x"_s, QString::fromUtf8(to_bytes(plain))};
        hostile.sections += {{}, u"de_CH"_s, u"\0\r\n\u2028\U0001F600"_s};
        hostile.closed = {{u"Closed"_s, u"es"_s, u"<p>can come back</p>"_s, 2}};
        for (const Document &document : {plain, hostile, Document()})
            QVERIFY(same(from_bytes(to_bytes(document)), document));

        const QByteArray bytes = to_bytes(hostile);
        QVERIFY(!bytes.contains("<script>"));
        QVERIFY(bytes.contains("Content-Security-Policy"));
        QVERIFY(bytes.contains("Häuser")); // as any browser reads it
    }

    void tells_what_is_wrong()
    {
        const QByteArray bytes = to_bytes(small_document());
        const auto reason = [](const QByteArray &what) { return reason_of([what] { from_bytes(what); }); };
        QVERIFY(reason("<html><body>Hello</body></html>").contains("no document"_L1));
        QVERIFY(reason({}).contains("no document"_L1));
        QVERIFY(
            reason(QByteArray(bytes).replace("document\" content=\"1", "document\" content=\"2")).contains("newer"_L1));
        QVERIFY(reason(bytes + '\n').contains("damaged"_L1));
        QVERIFY(reason_of([] { read_file(u"/nowhere/at all"_s); }).contains("No such file"_L1));
        QVERIFY(reason_of([] { read_file(u"/dev/zero"_s); }).contains("no file"_L1));
    }

    void refuses_every_damage()
    {
        const QByteArray bytes = to_bytes(small_document());
        auto *random = QRandomGenerator::global();
        for (int i = 0; i < 400; ++i) {
            QByteArray damaged = bytes;
            const int at = random->bounded(int(bytes.size()));
            if (i % 2)
                damaged.truncate(at);
            else
                damaged[at] = char(damaged[at] ^ (1 << random->bounded(8)));
            QVERIFY2(!reason_of([&] { from_bytes(damaged); }).isEmpty(), damaged.constData());
        }
        // With a checksum that fits, by someone who means it.
        QByteArray lying = bytes.first(bytes.lastIndexOf("<!-- blake2b-256 "));
        lying.replace("data-bytes=\"", "data-bytes=\"9999999999999999");
        lying +=
            "<!-- blake2b-256 " + QCryptographicHash::hash(lying, QCryptographicHash::Blake2b_256).toHex() + " -->\n";
        QVERIFY(reason_of([&] { from_bytes(lying); }).contains("damaged"_L1));
    }

    void replaces_a_file_or_leaves_it()
    {
        QTemporaryDir directory;
        const QString path = directory.filePath(u"a.html"_s);
        write_file(path, "old");
        write_file(path, "new");
        QCOMPARE(read_file(path), "new");
        QVERIFY(reason_of([&] { write_file(directory.filePath(u"none/a.html"_s), "x"); }).contains("No such file"_L1));
        const QByteArray large(1'000'000'001, Qt::Uninitialized); // could not be read again
        QVERIFY(reason_of([&] { write_file(path, large); }).contains("too large"_L1));
        QCOMPARE(read_file(path), "new");
        QCOMPARE(QDir(directory.path()).entryList(QDir::Files), QStringList(u"a.html"_s));
    }

    void imports_pages_of_any_name()
    {
        QTemporaryDir directory;
        for (const QString &name : {u"article"_s, u"page.php"_s, u"v1.2"_s, u"page.htm"_s, u"source.txt"_s}) {
            const QString path = directory.filePath(name);
            write_file(path, "<!DOCTYPE html>\n<html><body><p>an <b>article</b></p></body></html>\n");
            const bool shows_source = import_section(path).html.contains("&lt;b&gt;"_L1);
            QVERIFY2(shows_source == name.endsWith(".txt"_L1), qPrintable(name));
        }
    }

    void recovery_files_are_their_own()
    {
        Document document = small_document();
        QVERIFY(RecoveryFile::left_behind().empty());
        auto first = std::make_unique<RecoveryFile>();
        RecoveryFile second;
        for (RecoveryFile *file : {first.get(), &second}) {
            QSignalSpy written(file, &RecoveryFile::written);
            file->write({});
            file->write(document); // the later one counts
            QTRY_COMPARE(written.count(), 2);
            QVERIFY(same(from_bytes(read_file(file->path())), document));
        }
        QVERIFY(RecoveryFile::left_behind().empty()); // both are held

        const QString path = first->path();
        first.reset();
        {
            const auto found = RecoveryFile::left_behind();
            QCOMPARE(found.size(), 1u);
            QCOMPARE(found.front()->path(), path);
            QVERIFY(RecoveryFile::left_behind().empty());
            found.front()->remove();
        }
        QVERIFY(!QFile::exists(path));
        second.remove();
        QTRY_VERIFY(!QFile::exists(second.path()));
    }

    void full_disk_keeps_the_earlier_copy()
    {
        RecoveryFile file;
        QSignalSpy written(&file, &RecoveryFile::written);
        QSignalSpy failed(&file, &RecoveryFile::failed);
        const Document document = small_document();
        file.write(document);
        QTRY_COMPARE(written.count(), 1);

        bool has_failed = false;
        {
            const FullDisk disk(500);
            for (const int size : {1, 100000}) // in Qt's buffer, and beyond
                file.write({{{u"Other"_s, {}, QString(size, u'x')}}, {}});
            has_failed = QTest::qWaitFor([&] { return failed.count() == 2; });
        }
        QVERIFY(has_failed);
        for (const QList<QVariant> &reason : failed)
            QVERIFY2(reason.at(0).toString().contains("too large"_L1), qPrintable(reason.at(0).toString()));
        QVERIFY(same(from_bytes(read_file(file.path())), document));
        file.remove();
    }
};

MY_CLASSES_TEST_MAIN(TstDocumentFile)

#include "tst_document_file.moc"
