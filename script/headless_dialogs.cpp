#include "script/headless_dialogs.h"

#include "core/end_of_game.h"
#include "dialogs/scores_form.h"

namespace {

const char* NameOf(MessageIcon icon) {
    constexpr Indexed<const char*, 4, MessageIcon> names{{"question", "warning", "stop", "information"}};
    return names[icon];
}

}  // namespace

bool HeadlessDialogs::Confirmed(HeadlessAnswer yes, HeadlessAnswer no) {
    if (answers.empty()) return true;
    const HeadlessAnswer answer = answers.front();
    if (answer != yes && answer != no) throw AnswerDoesNotFit();
    answers.pop_front();
    return answer == yes;
}

Answer HeadlessDialogs::ShowMessage(const Message& message) {
    const bool ok = message.buttons == MessageButtons::Ok || Confirmed(HeadlessAnswer::Ok, HeadlessAnswer::Cancel);
    log_.push_back("message " + message.title + '|' + message.text + '|' + NameOf(message.icon) +
                   (ok ? "|ok" : "|cancel"));
    return ok ? Answer::Ok : Answer::Cancel;
}

void HeadlessDialogs::frmEndGame(Game& game) {
    frmEndGame_Load(game);
    const bool finish = Confirmed(HeadlessAnswer::Finish, HeadlessAnswer::Undo);
    if (finish)
        cmdFinish_Click(game);
    else
        cmdUndo_Click(game);
    log_.push_back(finish ? "dialog frmEndGame|finish" : "dialog frmEndGame|undo");
}

void HeadlessDialogs::frmTheWinerIs(Game& game) {
    frmTheWinerIs_Load(game);
    log_.push_back("dialog frmTheWinerIs");
}

void HeadlessDialogs::frmScores2(Game& game) {
    frmScores2_Unload(game, frmScores2_Load(game));
    log_.push_back("dialog frmScores2");
}

void HeadlessDialogs::frmOptions(Game& game) {
    OptionsForm form = frmOptions_Load(game);
    if (changeOptions) changeOptions(game, form);
    const bool ok = Confirmed(HeadlessAnswer::Ok, HeadlessAnswer::Cancel);
    if (ok)
        OptionsOk(game, form);
    else
        OptionsCancel(game, form);
    log_.push_back(ok ? "dialog frmOptions|ok" : "dialog frmOptions|cancel");
}
