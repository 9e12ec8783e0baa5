#pragma once

#include <QJsonDocument>
#include <QJsonObject>

#include "script/json_line.h"
#include "tests/readable.h"
#include "tests/table_driver.h"

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
