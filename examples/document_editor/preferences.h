// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QObject>

namespace document_editor {

enum class Paper { System, Light, Dark };

/// What a person has chosen once for all windows; kept by QSettings.
class Preferences : public QObject
{
    Q_OBJECT

public:
    static Preferences &instance();

    bool shows_page() const;
    void set_shows_page(bool on);
    Paper paper() const;
    void set_paper(Paper paper);
    bool marks_while_writing() const;
    void set_marks_while_writing(bool on);
    /// Of new sections: what was chosen last, at first the system's; empty where there is no dictionary.
    QString language() const;
    void set_language(const QString &language);

Q_SIGNALS:
    void changed();

private:
    void set(const QString &key, const QVariant &value);
};

} // namespace document_editor
