// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QTimer>

QT_BEGIN_NAMESPACE
class QAbstractTextDocumentLayout;
class QTextDocument;
QT_END_NAMESPACE

namespace my_classes {

class StillView;

/// Gives a document our layout while one of our views shows it, except for as long as it needs Qt's own: for tables and
/// floats, pages, and frames around the whole text. That is used on a stand-in if there are line heights that it does
/// not know. Belongs to the document; views of one document share it.
class LayoutSwitch : public QObject
{
    Q_OBJECT

public:
    /// The one of the document, made if need be.
    static LayoutSwitch *of(QTextDocument *document);

    void add(StillView *view);
    /// `keep`: the document goes too, and needs no other layout any more.
    void remove(StillView *view, bool keep);
    /// Switches if that is due and possible now.
    void settle();

private:
    explicit LayoutSwitch(QTextDocument *document);

    enum class Layout { own, qt, stand_in };

    Layout wanted() const;
    Layout present() const;
    int columns() const;
    bool is_possible() const;
    void end_edit();
    void check();
    void use(Layout wanted);
    void replace_layout(QAbstractTextDocumentLayout *layout);

    QTextDocument *m_document;
    QList<StillView *> m_views;
    QTimer m_quiet;
    int m_edits = 0; // between the two notifications around which the layout hears of a change
    int m_revision = 0;
    bool m_was_cleared = false;
};

} // namespace my_classes
