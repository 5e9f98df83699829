// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtGui/QTextDocument>

namespace my_classes {

/// While one lives, what is done to documents marks places in them and is no edit. GUI thread only.
class Marking
{
public:
    Marking() { ++s_depth; }
    ~Marking() { --s_depth; }
    Q_DISABLE_COPY_MOVE(Marking)

    static bool is_under_way() { return s_depth > 0; }

private:
    inline static int s_depth = 0;
};

/// Whether a document was edited since it was saved. QTextDocument counts marks, which are formats in its undo history,
/// as edits; this knows which undo steps they are.
class EditState : public QObject
{
    Q_OBJECT

public:
    explicit EditState(QTextDocument *document);

    bool is_modified() const;
    void set_modified(bool modified);

Q_SIGNALS:
    void modified_changed(bool modified);

private:
    struct Steps // from the first one up to the one before `end`
    {
        int first;
        int end;
    };

    void note_new_steps();
    void forget_steps_from(int step);
    void follow();
    bool only_marks_since_saved() const;

    QPointer<QTextDocument> m_document;
    QList<Steps> m_marks;
    int m_step = 0;   // how many are done
    int m_saved = -1; // the same when saved; -1 if undo does not lead there
    bool m_modified = false;
};

} // namespace my_classes
