// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QByteArrayList>
#include <QtCore/QDateTime>
#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <enchant.h>
#include <memory>
#include <utility>

namespace my_spellchecker {

/// One language's dictionary, shared by all checkers of that language in the process, with its remembered answers.
///
/// Loaded when first asked. The answers are forgotten when the person's word list changes, by whatever program.
class Dictionary
{
public:
    /// The dictionary that serves `lang`. Throws std::runtime_error naming `lang` and what there is, if none does.
    static std::shared_ptr<Dictionary> for_language(const QString &lang);

    /// The tags of all dictionaries on this system ("en_GB"), sorted.
    static QStringList installed_tags();

    Dictionary(std::shared_ptr<EnchantBroker> broker, const QString &tag);
    ~Dictionary();

    Dictionary(const Dictionary &) = delete;
    Dictionary &operator=(const Dictionary &) = delete;

    /// Loads the dictionary if it is not loaded or the word list has changed, and then forgets its answers. Returns a
    /// number that changes whenever remembered answers may have changed. Throws std::runtime_error if the dictionary
    /// cannot be loaded (any more).
    int refresh();

    /// Whether the engine calls `word` misspelled; remembered. Call refresh() first.
    bool is_misspelled(QStringView word);

    /// Replacements for `word`, best first; remembered. Throws as refresh() does.
    QStringList suggestions(const QString &word);

    /// Adds to the person's word list, or to the session's if the list cannot be written. Throws as refresh() does.
    void add(const QString &word);

private:
    using Stamp = std::pair<QDateTime, qint64>;

    void load();
    void unload();
    bool ask(const QString &word) const;
    Stamp word_list_stamp() const;
    void forget_verdicts_of(const QString &word);

    std::shared_ptr<EnchantBroker> m_broker;
    QString m_tag;
    EnchantDict *m_dictionary = nullptr; // the broker's
    QHash<QString, bool> m_is_misspelled;
    QHash<QString, QStringList> m_suggestions;
    QByteArrayList m_session_words; // that the list could not take
    Stamp m_word_list_stamp;
    int m_generation = 0;
};

} // namespace my_spellchecker
