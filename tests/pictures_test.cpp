#include "tests/window_table.h"

namespace {

using T = WindowTable&;

QImage Grab(T t, const char* control) {
    const QWidget& widget = t.At(control);
    return t.window.grab(QRect(widget.mapTo(&t.window, QPoint(0, 0)), widget.size())).toImage();
}

void Hover(T t, const char* control) { t.Move(*t.FreePoint(t.At(control))); }

// Presses the mouse on the control; Release comes off it first, so that no click comes of it.
void Press(T t, const char* control) {
    QTest::mousePress(t.window.windowHandle(), Qt::LeftButton, {}, *t.FreePoint(t.At(control)));
}
void Release(T t) { QTest::mouseRelease(t.window.windowHandle(), Qt::LeftButton, {}, QPoint(2, 100)); }

// A control and the states that its picture alone tells from each other, in the order in which they come.
struct Looks {
    const char* control;
    int variant;
    std::vector<void (*)(T)> states;
};

const Looks allLooks[] = {
    {"picDice_0",
     0,
     {[](T t) { t.window.ShowDieFace(0, 4); }, [](T t) { t.window.ShowRollingFace(0, 3); },
      [](T t) { t.window.ShowDieFace(0, 5); }, [](T t) { t.window.ShowDieHeld(0); },
      [](T t) { t.window.ShowDieFace(0, 6); }}},
    {"picRollDices",
     0,
     {[](T) {}, [](T t) { t.window.SetRollPicture(RollPicture::On); },
      [](T t) { t.window.SetRollPicture(RollPicture::Off); }, [](T t) { t.window.ShowNextPlayer(true); },
      [](T t) { t.window.ShowNextBoardButton(true, true); }, [](T t) { Hover(t, "cmdShowNextBoard"); },
      [](T t) { Press(t, "cmdShowNextBoard"); }}},
    {"picRound_1", 0, {[](T t) { t.window.SetLamps(1); }, [](T t) { t.window.SetLamps(2); }}},
    {"cmdDown_3",
     0,
     {[](T) {}, [](T t) { t.window.EnableBoxButton(ScoreColumn::Down, 3, true); }, [](T t) { Hover(t, "cmdDown_3"); },
      [](T t) { Press(t, "cmdDown_3"); },
      [](T t) {
          Release(t);
          t.window.SetBoxText(ScoreColumn::Down, 3, "12");
          t.window.ShowBoxButton(ScoreColumn::Down, 3, false);
      }}},
    {"cmdRand_3",
     4,
     {[](T t) { t.window.EnableBoxButton(ScoreColumn::Rand, 3, true); }, [](T t) { Hover(t, "cmdRand_3"); },
      [](T t) { Press(t, "cmdRand_3"); },
      [](T t) {
          Release(t);
          t.window.ShowBoxButton(ScoreColumn::Rand, 3, false);
      }}},
    {"lblOption_5", 0, {[](T) {}, [](T t) { t.window.HighlightRowLabel(5); }}},
    {"lblTip_5", 0, {[](T) {}, [](T t) { t.window.SetTipText(5, "30"); }, [](T t) { t.window.ShowTipColumn(false); }}},
    {"tbUndo",
     0,
     {[](T) {}, [](T t) { t.window.SetUndoEnabled(true); }, [](T t) { Hover(t, "tbUndo"); },
      [](T t) { Press(t, "tbUndo"); }}},
    {"tbSound", 0, {[](T) {}, [](T t) { t.window.ShowChoice(MenuChoice::Sounds, false); }}},
    {"tbBGmusic", 0, {[](T) {}, [](T t) { t.window.ShowChoice(MenuChoice::Music, true); }}},
    {"imgArrow", 0, {[](T) {}, [](T t) { t.window.LayOut(1, 5); }}},
};

TEST(Pictures, TellTheStatesOfAControlFromEachOther) {
    for (const Looks& looks : allLooks) {
        WindowTable t(VariantOf(looks.variant));
        QList<QImage> seen;
        for (const auto make : looks.states) {
            make(t);
            const QImage picture = Grab(t, looks.control);
            EXPECT_TRUE(picture == Grab(t, looks.control)) << looks.control << " changes by itself";
            const auto like = seen.indexOf(picture);
            EXPECT_EQ(like, -1) << looks.control << ": state " << seen.size() << " looks like state " << like;
            seen.append(picture);
        }
        Release(t);
    }
}

}  // namespace
