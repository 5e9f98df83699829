// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QDebug>
#include <QtCore/QDir>
#include <QtCore/QRandomGenerator>
#include <QtGui/QAbstractTextDocumentLayout>
#include <QtGui/QPainter>
#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>
#include <QtGui/QTextList>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTextEdit>

#include <algorithm>
#include <functional>
#include <tuple>
#include <utility>
#include <vector>

namespace test_support {

/// An object in the text that is none of Qt's.
class TextObject : public QObject, public QTextObjectInterface
{
public:
    void *qt_metacast(const char *name) override
    {
        const bool is_wanted = qstrcmp(name, qobject_interface_iid<QTextObjectInterface *>()) == 0;
        return is_wanted ? static_cast<QTextObjectInterface *>(this) : QObject::qt_metacast(name);
    }
    QSizeF intrinsicSize(QTextDocument *, int, const QTextFormat &) override { return {31.5, 22}; }
    void drawObject(QPainter *painter, const QRectF &place, QTextDocument *, int, const QTextFormat &) override
    {
        painter->drawEllipse(place);
    }
};

/// Two text areas with the same document, edited alike: what one shows has to be what the other shows.
class LayoutComparison
{
public:
    LayoutComparison(QTextEdit *ours, QTextEdit *qt, quint32 seed)
        : m_ours(ours)
        , m_qt(qt)
        , m_random(seed)
    {
        QImage picture(40, 30, QImage::Format_RGB32);
        picture.fill(Qt::darkGreen);
        for (QTextEdit *area : {ours, qt})
            area->document()->addResource(QTextDocument::ImageResource, QUrl(QStringLiteral("picture")), picture);
        for (QTextEdit *area : {ours, qt})
            layout(area)->registerHandler(QTextFormat::UserObject + 1, &m_object);
    }

    int below(int bound) { return bound < 1 ? 0 : static_cast<int>(m_random.bounded(bound)); }

    template<typename T, std::size_t Size>
    const T &any(const T (&list)[Size])
    {
        return list[below(static_cast<int>(Size))];
    }

    QString words(int count)
    {
        static const QStringList some =
            QStringLiteral("a|word|paragraphs|fi\u0301nd|\u05e9\u05dc\u05d5\u05dd|\u0645\u0631\u062d\u0628\u0627|\t|"
                           "\u4f60\u597d\u4e16\u754c|incomprehensibilities-and-more|\u2028|soft\u00adhyphen|\U0001F600|"
                           "12.5|(x)")
                .split(u'|');
        QStringList text;
        for (int i = 0; i < count; ++i)
            text += some.at(below(static_cast<int>(some.size())));
        return text.join(u' ');
    }

    QTextBlockFormat block_format()
    {
        static const Qt::Alignment alignments[] = {Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter, Qt::AlignJustify,
                                                   Qt::AlignRight | Qt::AlignAbsolute};
        static const std::pair<qreal, int> line_heights[] = {
            {0, QTextBlockFormat::SingleHeight},         {150, QTextBlockFormat::ProportionalHeight},
            {83, QTextBlockFormat::ProportionalHeight},  {31.3, QTextBlockFormat::FixedHeight},
            {9, QTextBlockFormat::FixedHeight},          {33, QTextBlockFormat::MinimumHeight},
            {7.4, QTextBlockFormat::LineDistanceHeight}, {1.5, k_factor}};
        QTextBlockFormat format;
        const std::function<void()> changes[] = {
            [&] { format.setAlignment(any(alignments)); },
            [&] { format.setIndent(below(4)); },
            [&] { format.setTopMargin(below(60) / 3.0); },
            [&] { format.setBottomMargin(below(60) / 3.0); },
            [&] { format.setLeftMargin(below(90) / 2.0); },
            [&] { format.setRightMargin(below(90) / 2.0); },
            [&] { format.setTextIndent(below(120) / 2.0 - 10); },
            [&] { format.setBackground(below(2) ? QBrush(Qt::yellow) : QBrush(Qt::cyan, Qt::Dense5Pattern)); },
            [&] { format.setLayoutDirection(below(2) ? Qt::RightToLeft : Qt::LayoutDirectionAuto); },
            [&] { format.setNonBreakableLines(below(2)); },
            [&] { format.setMarker(QTextBlockFormat::MarkerType(below(3))); },
            [&] {
                format.setTabPositions({QTextOption::Tab(50 + below(100), QTextOption::RightTab),
                                        QTextOption::Tab(300, QTextOption::CenterTab)});
            },
            [&] { std::apply([&](qreal height, int type) { format.setLineHeight(height, type); }, any(line_heights)); },
        };
        any(changes)();
        return format;
    }

    QTextCharFormat char_format()
    {
        // No small capitals: Qt may go on with those of the former size after a zoom.
        static const QFont::Capitalization capitals[] = {QFont::AllUppercase, QFont::AllLowercase, QFont::Capitalize};
        QTextCharFormat format;
        const std::function<void()> changes[] = {
            [&] { format.setFontPointSize(6 + below(60) / 2.0); },
            [&] { format.setFontWeight(QFont::Bold); },
            [&] { format.setFontItalic(true); },
            [&] { format.setFontUnderline(true); },
            [&] { format.setFontFamilies({QStringLiteral("Liberation Mono")}); },
            [&] { format.setForeground(Qt::blue); },
            [&] { format.setBackground(Qt::green); },
            [&] {
                format.setVerticalAlignment(below(2) ? QTextCharFormat::AlignSuperScript
                                                     : QTextCharFormat::AlignSubScript);
            },
            [&] { format.setFontLetterSpacing(100 + below(60)); },
            [&] { format.setFontStrikeOut(true); },
            [&] { format.setFontCapitalization(any(capitals)); },
            [&] {
                format.setAnchor(true);
                format.setAnchorHref(QStringLiteral("x"));
            },
        };
        any(changes)();
        return format;
    }

    /// Between lines of a height that Qt has to be told in another way.
    void insert_table()
    {
        QTextBlockFormat format;
        format.setLineHeight(1.5, k_factor);
        for (QTextEdit *area : {m_ours, m_qt}) {
            QTextCursor cursor(area->document());
            cursor.mergeBlockFormat(area == m_qt ? known_to_qt(format) : format);
            cursor.insertTable(2, 3);
        }
        m_has_table = true;
    }

    /// One random edit, done to both.
    void edit()
    {
        const int end = m_qt->document()->characterCount() - 1;
        const int from = below(end + 1);
        const int to = below(3) == 0 ? below(end + 1) : std::min(end, from + below(40));
        const QString text = words(1 + below(below(15) == 0 ? 120 : 20));
        const QTextBlockFormat block = block_format();
        const QTextCharFormat character = char_format();
        QTextImageFormat picture;
        picture.setName(QStringLiteral("picture"));
        if (below(2))
            picture.setWidth(20 + below(100));
        if (below(2))
            picture.setVerticalAlignment(QTextCharFormat::VerticalAlignment(below(7)));
        QTextListFormat list;
        list.setStyle(QTextListFormat::Style(QTextListFormat::ListUpperRoman + below(8)));
        list.setIndent(below(3));
        QTextCharFormat object;
        object.setObjectType(QTextFormat::UserObject + 1);
        const auto wrap = QTextEdit::LineWrapMode(below(4));
        const auto break_at = QTextOption::WrapMode(below(5));
        int composed = -1;
        QTextEdit *area = nullptr;
        QTextCursor cursor;
        QTextBlockFormat paragraph;
        const auto select = [&] { cursor.setPosition(to, QTextCursor::KeepAnchor); };
        const std::pair<int, std::function<void()>> all[] = {
            // how often, and what
            {3, [&] { cursor.insertText(text); }},
            {2, [&] { cursor.insertBlock(); }},
            {1, [&] { cursor.insertText(text + u'\n' + text); }},
            {1,
             [&] {
                 cursor.setPosition(std::min(end, from + 30), QTextCursor::KeepAnchor);
                 cursor.removeSelectedText();
             }},
            {1,
             [&] {
                 select();
                 if (std::abs(to - from) < 300)
                     cursor.insertText(text.left(5));
             }},
            {3, [&] { select(), cursor.mergeBlockFormat(paragraph); }},
            {2, [&] { select(), cursor.mergeCharFormat(character); }},
            {1, [&] { select(), cursor.setCharFormat({}); }},
            {1, [&] { select(), cursor.createList(list); }},
            {1, [&] { cursor.insertImage(picture); }},
            {1, [&] { cursor.insertText(QString(QChar(QChar::ObjectReplacementCharacter)), object); }},
            {1,
             [&] {
                 cursor.insertHtml(
                     QStringLiteral("<hr><p style='margin:7px'>a <b>rule</b> and <img src='picture' width=17></p>"));
             }},
            {1, [&] { area->document()->undo(); }},
            {1, [&] { area->document()->redo(); }},
            {1,
             [&] {
                 cursor.beginEditBlock();
                 cursor.insertText(text);
                 cursor.setPosition(to / 2);
                 cursor.insertBlock(paragraph);
                 cursor.movePosition(QTextCursor::End);
                 cursor.deletePreviousChar();
                 cursor.endEditBlock();
             }},
            {1,
             [&] {                 // hidden, or seen again
                 if (!m_has_table) // Qt's columns go by what was hidden when
                     cursor.block().setVisible(!cursor.block().isVisible());
                 area->document()->markContentsDirty(cursor.block().position(), cursor.block().length());
             }},
            {1, [&] { compose(area, composed = from, text.left(9)); }}, // until the next edit
            {1,
             [&] {
                 if (!m_has_table) // and by how wide the cursor was
                     layout(area)->setProperty("cursorWidth", 1 + to % 3);
             }},
            {1,
             [&] {
                 area->setLineWrapMode(m_has_table && wrap == QTextEdit::FixedColumnWidth ? QTextEdit::NoWrap : wrap);
                 area->setLineWrapColumnOrWidth(wrap == QTextEdit::FixedColumnWidth ? 20 + to % 90 : 100 + to % 900);
                 area->setWordWrapMode(break_at);
             }},
        };
        std::vector<int> often;
        for (int i = 0; i < int(std::size(all)); ++i)
            often.insert(often.end(), all[i].first, i);
        const int what = often.at(below(int(often.size())));
        m_last = QStringLiteral("edit %1 from %2 to %3 of %4").arg(what).arg(from).arg(to).arg(end);
        for (QTextEdit *one : {m_ours, m_qt}) {
            area = one;
            if (m_composed >= 0)
                compose(area, m_composed, QString());
            cursor = QTextCursor(area->document());
            cursor.setPosition(from);
            paragraph = area == m_qt ? known_to_qt(block) : block;
            all[what].second();
        }
        m_composed = composed;
    }

    static void compose(QTextEdit *area, int position, const QString &text)
    {
        const QTextBlock block = area->document()->findBlock(position);
        block.layout()->setPreeditArea(text.isEmpty() ? -1 : position - block.position(), text);
        area->document()->markContentsDirty(block.position(), block.length());
    }

    /// What differs, or nothing. What Qt makes of tables depends on what was there before, until all is laid out anew.
    QString difference()
    {
        const QString found = first_difference();
        if (found.isEmpty() || !m_has_table)
            return found;
        for (const QTextEdit *area : {m_ours, m_qt})
            area->document()->markContentsDirty(0, area->document()->characterCount());
        return first_difference();
    }

    QString first_difference()
    {
        QString found = geometry();
        if (found.isEmpty())
            found = hits();
        if (found.isEmpty())
            found = moves();
        if (found.isEmpty())
            found = pictures();
        return found.isEmpty()
                   ? found
                   : m_last + told(m_qt->lineWrapMode(), m_qt->lineWrapColumnOrWidth(), m_qt->wordWrapMode()) + found;
    }

    QString geometry()
    {
        if (m_qt->document()->pageSize() != m_ours->document()->pageSize()) // it has one for aligned text only
            m_qt->document()->setPageSize(m_ours->document()->pageSize());
        QTextBlock a = m_ours->document()->begin();
        QTextBlock b = m_qt->document()->begin();
        for (; a.isValid() && b.isValid(); a = a.next(), b = b.next()) {
            const QRectF ours = layout(m_ours)->blockBoundingRect(a);
            const QRectF qt = layout(m_qt)->blockBoundingRect(b);
            if (ours != qt)
                return told(at(a), ours, qt);
            if (a.layout()->lineCount() != b.layout()->lineCount())
                return told(at(a), "lines", a.layout()->lineCount(), b.layout()->lineCount());
            for (int i = 0; i < a.layout()->lineCount(); ++i) {
                const QTextLine x = a.layout()->lineAt(i);
                const QTextLine y = b.layout()->lineAt(i);
                if (x.rect() != y.rect() || x.naturalTextRect() != y.naturalTextRect() ||
                    x.textStart() != y.textStart() || x.textLength() != y.textLength())
                    return told(at(a), "line", i, x.rect(), y.rect(), x.naturalTextRect(), y.naturalTextRect());
            }
            ++m_checks;
        }
        if (a.isValid() != b.isValid())
            return QStringLiteral("paragraphs");
        const QSizeF ours = layout(m_ours)->documentSize();
        const QSizeF qt = layout(m_qt)->documentSize();
        return ours == qt ? QString() : told("size", ours, qt);
    }

    QString hits()
    {
        const QSizeF size = layout(m_qt)->documentSize();
        for (int i = 0; i < 20; ++i) {
            const QPointF point(below(int(size.width()) + 20) - 10,
                                below(int(size.height()) + 40) - 20 + below(64) / 64.0);
            if (is_ambiguous(point.y()))
                continue;
            for (const auto accuracy : {Qt::FuzzyHit, Qt::ExactHit}) {
                const int ours = layout(m_ours)->hitTest(point, accuracy);
                const int qt = layout(m_qt)->hitTest(point, accuracy);
                if (ours != qt)
                    return told("hit", point, accuracy, ours, qt);
            }
            ++m_checks;
        }
        return {};
    }

    QString moves()
    {
        for (int i = 0; i < 10; ++i) {
            static const QTextCursor::MoveOperation all[] = {
                QTextCursor::Up,   QTextCursor::Down,  QTextCursor::StartOfLine, QTextCursor::EndOfLine,
                QTextCursor::Left, QTextCursor::Right, QTextCursor::WordLeft,    QTextCursor::NextBlock};
            QTextCursor a(m_ours->document());
            QTextCursor b(m_qt->document());
            const int start = below(m_qt->document()->characterCount());
            a.setPosition(start);
            b.setPosition(start);
            for (int step = 0; step < 4; ++step) {
                const auto move = any(all);
                a.movePosition(move);
                b.movePosition(move);
                if (a.position() != b.position())
                    return told("move", move, "from", start, a.position(), b.position());
                const QRect x = cursor_rect(m_ours, a);
                const QRect y = cursor_rect(m_qt, b);
                if (x != y)
                    return told("cursor at", a.position(), x, y);
                ++m_checks;
            }
        }
        return {};
    }

    QString pictures()
    {
        const int height = int(layout(m_qt)->documentSize().height());
        const QRectF clip(0, below(std::max(1, height - 200)), m_qt->viewport()->width(),
                          100 + 2 * below(250)); // whole pixels on all screens
        const int from = below(m_qt->document()->characterCount());
        const int to = below(m_qt->document()->characterCount());
        const int anywhere = below(m_qt->document()->characterCount());
        const int cursor = below(9) == 0 ? -3 : anywhere; // in what is being composed
        const bool full_width = below(2);
        const qreal ratio = below(3) == 0 ? 1.5 : 1;
        QImage both[2];
        for (int turn = 0; turn < 4; ++turn) { // Qt may draw large letters otherwise the first time
            const int i = turn % 2;
            if (turn == 2 && looks_alike(both[0], both[1]))
                break;
            QTextEdit *area = i == 0 ? m_ours : m_qt;
            QAbstractTextDocumentLayout::PaintContext context;
            context.palette = m_qt->palette();
            context.cursorPosition = cursor;
            context.clip = clip;
            QAbstractTextDocumentLayout::Selection selection;
            selection.cursor = QTextCursor(area->document());
            selection.cursor.setPosition(from);
            if (!full_width || from % 3)
                selection.cursor.setPosition(to, QTextCursor::KeepAnchor);
            selection.format.setBackground(context.palette.highlight());
            selection.format.setForeground(context.palette.highlightedText());
            if (full_width)
                selection.format.setProperty(QTextFormat::FullWidthSelection, true);
            context.selections.append(selection);
            both[i] = QImage((clip.size() * ratio).toSize(), QImage::Format_RGB32);
            both[i].setDevicePixelRatio(ratio);
            both[i].fill(Qt::white);
            QPainter painter(&both[i]);
            painter.translate(-clip.topLeft());
            painter.setClipRect(clip);
            painter.setRenderHint(QPainter::SmoothPixmapTransform); // as the editor draws pictures
            layout(area)->draw(&painter, context);
            painter.end();
            // Letters may stand out of their paragraph by a pixel, which Qt does not draw where the paragraph is
            // outside.
            both[i] = both[i].copy(both[i].rect().adjusted(0, 2, 0, -2));
        }
        ++m_checks;
        if (looks_alike(both[0], both[1]))
            return {};
        both[0].save(QDir::temp().filePath(QStringLiteral("layout_ours.png")));
        both[1].save(QDir::temp().filePath(QStringLiteral("layout_qt.png")));
        return told("pictures of", clip, "at", ratio, "selected", from, to, full_width, "cursor", cursor);
    }

    int checks() const { return m_checks; }

private:
    static constexpr int k_factor = 150; // the type of line heights that the library stores, and Qt does not know

    static QTextBlockFormat known_to_qt(QTextBlockFormat format)
    {
        if (format.lineHeightType() == k_factor)
            format.setLineHeight(100 * format.lineHeight(), QTextBlockFormat::ProportionalHeight);
        return format;
    }

    static QAbstractTextDocumentLayout *layout(QTextEdit *area) { return area->document()->documentLayout(); }

    /// Where lines overlap, and where some paragraph is hidden: Qt finds it at its former place, and others instead of
    /// it.
    bool is_ambiguous(qreal y)
    {
        int lines = 0;
        for (QTextBlock block = m_qt->document()->begin(); block.isValid(); block = block.next()) {
            if (!block.isVisible())
                return true;
            const QRectF paragraph = layout(m_qt)->blockBoundingRect(block).adjusted(0, -1, 0, 1);
            const qreal blur = block.blockFormat().lineHeightType() == QTextBlockFormat::SingleHeight ? 1 : 5;
            for (int i = 0; i < block.layout()->lineCount(); ++i) {
                const QTextLine line = block.layout()->lineAt(i);
                const qreal top = block.layout()->position().y() + line.y();
                const bool is_in_line = y >= top - blur && y <= top + line.height() + blur;
                lines += is_in_line ? (paragraph.top() <= y && y <= paragraph.bottom() ? 1 : 2) : 0;
            }
        }
        return lines > 1;
    }

    /// Edges of selected check boxes are rounded by the last bit of their colours now and then.
    bool looks_alike(const QImage &a, const QImage &b) const
    {
        int tolerance = 0;
        for (QTextBlock block = m_qt->document()->begin(); block.isValid(); block = block.next())
            tolerance = std::max(tolerance, block.blockFormat().hasProperty(QTextFormat::BlockMarker) ? 1 : 0);
        const auto is_near = [&](int x, int y) { return std::abs(x - y) <= tolerance; };
        return std::equal(a.constBits(), a.constBits() + a.sizeInBytes(), b.constBits(), is_near);
    }

    static QRect cursor_rect(QTextEdit *area, const QTextCursor &cursor)
    {
        return area->cursorRect(cursor).translated(area->horizontalScrollBar()->value(),
                                                   area->verticalScrollBar()->value());
    }
    static QString at(const QTextBlock &block)
    {
        return told("paragraph", block.blockNumber(), "of", block.document()->blockCount(),
                    block.previous().blockFormat().properties(), block.blockFormat().properties());
    }
    template<typename... Values>
    static QString told(const Values &...values)
    {
        QString text;
        (QDebug(&text) << ... << values);
        return text;
    }

    TextObject m_object;
    QTextEdit *m_ours;
    QTextEdit *m_qt;
    QRandomGenerator m_random;
    QString m_last;
    int m_composed = -1; // where
    bool m_has_table = false;
    int m_checks = 0;
};

} // namespace test_support
