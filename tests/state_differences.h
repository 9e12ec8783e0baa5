#pragma once

#include <QJsonDocument>
#include <QJsonObject>

#include "script/json_line.h"
#include "tests/turn_steps.h"

// The eight variants.
inline GameSettings Variant(unsigned long n) {
    return {.NumberOfDice = n & 1 ? 4 : 5, .NumberOfPlayers = n & 2 ? 2 : 1, .NumberOfColumns = n & 4 ? 1 : 4};
}

// All that a script tells of the table, but for its log.
inline QJsonObject StateOf(const PlayedTable& played) {
    QJsonObject state = QJsonDocument::fromJson(QByteArray::fromStdString(JsonLine("", false, played.table))).object();
    state.remove("log");
    return state;
}

// The names of all that differs, like "session.Total tips ", but for those that stand in allowed between blanks.
inline std::string Differences(const QJsonObject& one, const QJsonObject& other, const std::string& allowed = {},
                               const std::string& in = {}) {
    std::string names;
    for (const QString& key : one.keys()) {
        const std::string name = in + key.toStdString();
        const QJsonValue value = one[key];
        if (value == other[key] || allowed.find(' ' + name + ' ') != allowed.npos) continue;
        names +=
            value.isObject() ? Differences(value.toObject(), other[key].toObject(), allowed, name + '.') : name + ' ';
    }
    return names;
}

// What one event does on a table of its own, after others. Differences of "*" are not looked at.
inline void ExpectEvent(const std::string& before, const std::string& event, const std::string& log,
                        const std::string& differences, const std::deque<HeadlessAnswer>& answers = {}) {
    PlayedTable played;
    played.Do(before);
    const QJsonObject state = StateOf(played);
    played.table.dialogs.answers = answers;
    played.Do(event);
    EXPECT_EQ(Shortened(played.table.log), log) << before << " > " << event;
    EXPECT_EQ(differences == "*" ? "*" : Differences(state, StateOf(played)), differences) << before << " > " << event;
}
