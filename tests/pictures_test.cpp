#include "table/row_names.h"
#include "table/set_controls.h"
#include "tests/window_table.h"

namespace {

QImage Grab(const WindowTable& t, const QString& control) {
    const QWidget& widget = t.At(control);
    return widget.window()->grab(QRect(widget.mapTo(&t.window, QPoint(0, 0)), widget.size())).toImage();
}

// The states of a control that its picture alone tells apart, as they come. mouse: then those under the mouse, pressed.
void ExpectApart(WindowTable& t, const QString& control, std::vector<std::function<void()>> states,
                 bool mouse = false) {
    QWindow* window = t.window.windowHandle();
    const auto middle = [&] { return *t.FreePoint(t.At(control)); };
    if (mouse) states.push_back([&] { t.Move(middle()); });
    if (mouse) states.push_back([&] { QTest::mousePress(window, Qt::LeftButton, {}, middle()); });
    QList<QImage> seen;
    for (const auto& make : states) {
        make();
        const QImage picture = Grab(t, control);
        EXPECT_TRUE(picture == Grab(t, control)) << control.toStdString() << " changes by itself";
        const auto like = seen.indexOf(picture);
        EXPECT_EQ(like, -1) << control.toStdString() << ": state " << seen.size() << " looks like state " << like;
        seen.append(picture);
    }
    if (mouse) QTest::mouseRelease(window, Qt::LeftButton, {}, {2, 100});  // off the control: no click comes of it
}

TEST(Pictures, TellTheStatesOfAControlFromEachOther) {
    WindowTable t;
    frmLuckyCup& w = t.window;
    const auto open = [&](ScoreColumn column) { w.ShowBoxButton(column, 3, true), w.EnableBoxButton(column, 3, true); };
    using enum ScoreColumn;
    ExpectApart(t, "picDice_0",
                {[&] { w.ShowDieFace(0, 4); }, [&] { w.ShowRollingFace(0, 3); }, [&] { w.ShowDieFace(0, 5); },
                 [&] { w.ShowDieHeld(0); }, [&] { w.ShowDieFace(0, 6); }});
    ExpectApart(t, "picRound_1", {[&] { w.SetLamps(1); }, [&] { w.SetLamps(2); }});
    ExpectApart(t, "picRollDices",
                {[] {}, [&] { w.SetRollPicture(RollPicture::On); }, [&] { w.SetRollPicture(RollPicture::Off); },
                 [&] { w.ShowNextPlayer(true); }, [&] { w.ShowNextBoardButton(true, true); }});
    ExpectApart(t, "cmdShowNextBoard", {[] {}}, true);
    w.ShowNextBoardButton(false, false);
    ExpectApart(t, "cmdNextPlayer", {[&] { w.ShowNextPlayer(true); }}, true);
    w.SetBoxText(Down, 3, "12");
    ExpectApart(t, "cmdDown_3", {[] {}, [&] { w.ShowBoxButton(Down, 3, false); }, [&] { open(Down); }}, true);
    ExpectApart(t, "lblOption_5", {[] {}, [&] { w.HighlightRowLabel(5); }});
    ExpectApart(t, "lblTip_5", {[] {}, [&] { w.SetTipText(5, "30"); }, [&] { w.ShowTipColumn(false); }});
    ExpectApart(t, "tbUndo", {[] {}, [&] { w.SetUndoEnabled(true); }}, true);
    ExpectApart(t, "tbSound", {[] {}, [&] { w.ShowChoice(MenuChoice::Sounds, false); }});
    ExpectApart(t, "tbBGmusic", {[] {}, [&] { w.ShowChoice(MenuChoice::Music, true); }});
    t.game.settings.NumberOfColumns = 1;
    ExpectApart(t, "imgArrow", {[] {}, [&] { SetControls(t.game); }});
    ExpectApart(t, "cmdRand_3", {[&] { w.ShowBoxButton(Rand, 3, false); }, [&] { open(Rand); }}, true);
}

TEST(Pictures, OfOpenBoxesTellTheirColumns) {
    WindowTable t;
    QList<QImage> seen;
    for (ScoreColumn column : allColumns) {
        t.window.EnableBoxButton(column, 3, true);
        seen.append(Grab(t, QString("cmd%1_3").arg(ColumnName(column))));
        EXPECT_EQ(seen.indexOf(seen.back()), seen.size() - 1) << ColumnName(column);
    }
}

}  // namespace
