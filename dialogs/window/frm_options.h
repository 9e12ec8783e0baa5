#pragma once

#include <QCheckBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QSlider>

#include "dialogs/options_form.h"
#include "dialogs/window/dialog_window.h"

class QBoxLayout;
class QGroupBox;

// The Options window: shows an OptionsForm and passes on what the user does.
class frmOptions final : public DialogWindow {
public:
    frmOptions(QWidget& owner, Game& game, Art& art);

    void reject() override;  // Escape, as the button Cancel

protected:
    void closeEvent(QCloseEvent* event) override;  // the close box keeps the volume that the slider has set

private:
    QWidget* MakePage();
    QGroupBox* MakeGeneral();
    QGroupBox* MakeVolume();
    QBoxLayout* MakeButtons(Art& art);
    void Connect();
    void StopTabAtChecked();
    void Show();  // the form in the controls
    void Read();  // what was typed and checked into the form
    void ChoosePlayers(void (*click)(OptionsForm&));
    void Ok();

    Game& game_;
    OptionsForm form_;
    QRadioButton *optYahtzee_, *optYamb_;
    QRadioButton *opt5Dice_, *opt6Dice_;
    QRadioButton *opt1Player_, *opt2Players_;
    QLineEdit *txtName1_, *txtName2_;
    QCheckBox *chkShowStatusBar_, *chkQuitGame_, *chkConfirmExit_;
    QRadioButton *optShowNone_, *optShowSplash_, *optShowDialog_;
    QSlider* sldVolume_;
};
