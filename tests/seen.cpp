#include <QAbstractButton>
#include <QJsonArray>
#include <QJsonObject>
#include <QRegularExpression>

#include "table/row_names.h"
#include "tests/twin_tables.h"

// Reads the window as a player would, widget by widget.
namespace {

template <typename Of>
QJsonArray Array(int first, int last, Of of) {
    QJsonArray values;
    for (int i = first; i <= last; ++i) values.append(QJsonValue(of(i)));
    return values;
}

template <typename Is>
QJsonArray RowsThat(Is is) {
    QJsonArray rows;
    for (int row = 0; row < rowCount; ++row)
        if (is(row)) rows.append(row);
    return rows;
}

template <typename Of>
QJsonObject Columns(Of of) {
    QJsonObject columns;
    for (ScoreColumn column : allColumns) columns[ColumnName(column)] = of(QString(ColumnName(column)));
    return columns;
}

QString TextOf(const WindowTable& t, const QString& name, int i = -1) {
    return QString::fromStdString(t.Text(name, i));
}

QString PictureOf(const WindowTable& t, const QString& name, int i = -1) {
    return dynamic_cast<PictureButton&>(t.At(name, i)).ShownLooks().plain;
}

// 1 to 6; -1 when the two pictures of the die are not those of one face.
int FaceOf(const WindowTable& t, int i) {
    const QString free = PictureOf(t, "picDice", i), held = PictureOf(t, "PicDiceOff", i);
    const int face = free.right(1).toInt();
    return free == QString("die_free_%1").arg(face) && held == QString("die_held_%1").arg(face) ? face : -1;
}

QJsonObject Dice(const WindowTable& t) {
    const auto shown = [&](int i) {
        const bool free = t.Shown("picDice", i), held = t.Shown("PicDiceOff", i);
        return free && held ? "both" : free ? "free" : held ? "held" : "hidden";
    };
    const auto enabled = [&](int i) { return t.At(t.Shown("picDice", i) ? "picDice" : "PicDiceOff", i).isEnabled(); };
    return {{"face", Array(0, 5, [&](int i) { return FaceOf(t, i); })},
            {"shown", Array(0, 5, shown)},
            {"enabled", Array(0, 5, [&](int i) { return shown(i) != QString("hidden") && enabled(i); })}};
}

int Lamps(const WindowTable& t) {
    int lit = 0;
    while (lit < 3 && t.Shown("picRound", lit)) ++lit;
    for (int k = 0; k < 3; ++k)
        if (t.Shown("picRound", k) != (k < lit) || t.Shown("picRoundBG", k) != (k >= lit)) return -1;
    return lit;
}

bool Highlighted(const WindowTable& t, int row) {
    return t.At("shpOptions", row).grab().toImage().pixelColor(3, 7).lightness() > 200;
}

// A number for one of the two, or a text that no setting has.
QJsonValue Agreed(bool on, bool off) { return on != off ? QJsonValue(on) : QJsonValue("both or none"); }

// The settings that the menu shows as pairs, and the toolbar as pictures.
QJsonObject Settings(const WindowTable& t) {
    const auto pair = [&](const char* on, const char* switchOn, const char* off, const char* switchOff) {
        const bool agrees = t.Entry(on).isVisible() == t.Entry(switchOff).isVisible() &&
                            t.Entry(off).isVisible() == t.Entry(switchOn).isVisible();
        return Agreed(agrees && t.Entry(on).isVisible(), agrees && t.Entry(off).isVisible());
    };
    const auto pairAndKey = [](const QJsonValue& inMenu, const QWidget& key, const QString& on) {
        return inMenu.toBool() == (key.property("picture") == on) ? inMenu : QJsonValue("menu and key differ");
    };
    return {{"hintAllways", pair("mnuHintsAllways", "mnuHintsAllways2", "mnuHintsByRequest", "mnuHintsByRequest2")},
            {"SoundEnabled", pairAndKey(pair("mnuSoundsOn", "mnuSoundsOn2", "mnuSoundsOff", "mnuSoundsOff2"),
                                        t.At("tbSound"), "tb_sound_on")},
            {"BGMusicEnabled", pairAndKey(pair("mnuMusicOn", "mnuMusicOn2", "mnuMusicOff", "mnuMusicOff2"),
                                          t.At("tbBGmusic"), "tb_music_on")}};
}

QJsonObject BoardOf(const WindowTable& t) {
    const auto totals = [&](const QString& column) {
        return QJsonArray{TextOf(t, "lbl" + column + "Tot1"), TextOf(t, "lbl" + column + "Tot2"),
                          TextOf(t, "lbl" + column + "Tot")};
    };
    return {{"boxes", Columns([&](const QString& column) {
                 return Array(0, rowCount - 1, [&](int row) { return TextOf(t, "lbl" + column, row); });
             })},
            {"totals", Columns(totals)},
            {"offered", Columns([&](const QString& column) {
                 return RowsThat([&](int row) { return t.Shown("cmd" + column, row); });
             })},
            {"enabled", Columns([&](const QString& column) {
                 return RowsThat([&](int row) { return t.At("cmd" + column, row).isEnabled(); });
             })}};
}

QJsonObject ControlsOf(const WindowTable& t) {
    const auto& roll = t.At("picRollDices");
    const auto& board = dynamic_cast<QAbstractButton&>(t.At("cmdShowNextBoard"));
    const auto both = [&](const char* entry, const char* key) {
        return Agreed(t.Entry(entry).isEnabled() && t.At(key).isEnabled(),
                      !t.Entry(entry).isEnabled() && !t.At(key).isEnabled());
    };
    return {{"roll", QJsonObject{{"enabled", roll.isEnabled()},
                                 {"visible", t.Shown("picRollDices")},
                                 {"picture", PictureOf(t, "picRollDices").remove("roll_")}}},
            {"lamps", Lamps(t)},
            {"undo", both("mnuUndoUndo", "tbUndo")},
            {"redo", both("mnuUndoRedo", "tbRedo")},
            {"hintButton", t.At("tbHint").isEnabled()},
            {"nextPlayer", t.Shown("cmdNextPlayer")},
            {"showBoard", QJsonObject{{"visible", t.Shown("cmdShowNextBoard")},
                                      {"enabled", board.isEnabled()},
                                      {"caption", board.text().replace("&&", "&")}}}};
}

}  // namespace

QJsonObject Seen(const WindowTable& t) {
    const auto tips = RowsThat([&](int row) { return t.Shown("lblTip", row); });
    QJsonObject seen{{"settings", Settings(t)},
                     {"dice", Dice(t)},
                     {"tips", Array(0, rowCount - 1, [&](int row) { return TextOf(t, "lblTip", row); })},
                     {"tipColumn", Agreed(tips.size() == rowCount, tips.empty())},
                     {"highlight", RowsThat([&](int row) { return Highlighted(t, row); })},
                     {"panels", Array(1, 5, [&](int k) { return TextOf(t, "StatusBar1", k); })},
                     {"panelVisible", Array(1, 5, [&](int k) { return t.Shown("StatusBar1", k); })},
                     {"statusBar", t.Shown("StatusBar1")},
                     {"height", t.window.centralWidget()->height()},
                     {"title", t.window.windowTitle().replace("[*][*]", "[*]")},
                     {"minimized", t.window.isMinimized()},
                     {"closed", t.window.isHidden()}};
    for (const QJsonObject& part : {BoardOf(t), ControlsOf(t)})
        for (auto value = part.begin(); value != part.end(); ++value) seen[value.key()] = value.value();
    return seen;
}
