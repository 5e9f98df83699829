// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QObject>
#include <QtCore/QVariant>

namespace document_editor {

enum class Paper { System, Light, Dark };

/// What a person has chosen once for all windows; kept by QSettings.
class Preferences : public QObject
{
    Q_OBJECT

public:
    static Preferences &instance();

    bool shows_page() const { return value("page_view", true).toBool(); }
    void set_shows_page(bool on) { set("page_view", on); }
    Paper paper() const { return Paper(qBound(0, value("paper", 0).toInt(), int(Paper::Dark))); }
    void set_paper(Paper paper) { set("paper", int(paper)); }
    bool marks_while_writing() const { return value("marking", true).toBool(); }
    void set_marks_while_writing(bool on) { set("marking", on); }
    /// Of new sections: what was chosen last, at first the system's; empty where there is no dictionary.
    QString language() const;
    void set_language(const QString &language) { set("language", language); }

Q_SIGNALS:
    void changed();

private:
    static QVariant value(const char *key, const QVariant &at_first);
    void set(const char *key, const QVariant &value);
};

} // namespace document_editor
