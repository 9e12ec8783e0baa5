#include "dialogs/window/frm_options.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTabWidget>
#include <limits>

namespace {
template <typename Control, typename... Caption>
Control* Named(const char* name, Caption... caption) {
    auto* control = new Control(caption...);
    control->setObjectName(name);
    return control;
}

QLineEdit* NameField(const char* name, const char* spokenName) {
    auto* field = Named<QLineEdit>(name);
    field->setAccessibleName(spokenName);
    field->setMaxLength(std::numeric_limits<int>::max());
    return field;
}

// The blanks around a title are for the eye.
QGroupBox* NamedGroup(const char* name, const char* title) {
    auto* group = Named<QGroupBox>(name, title);
    group->setAccessibleName(QString(title).trimmed());
    return group;
}

QGroupBox* Group(const char* name, const char* title, std::initializer_list<QWidget*> controls) {
    auto* group = NamedGroup(name, title);
    auto* column = new QVBoxLayout(group);
    for (QWidget* control : controls) column->addWidget(control);
    return group;
}
}  // namespace

frmOptions::frmOptions(QWidget& owner, Game& game, Art& art)
    : DialogWindow(owner, "frmOptions", "Options", 5685, 7755),
      game_(game),
      form_(frmOptions_Load(game)),
      optYahtzee_(Named<QRadioButton>("optYahtzee", "&Yahtzee (single column)")),
      optYamb_(Named<QRadioButton>("optYamb", "Y&amb (four columns)")),
      opt5Dice_(Named<QRadioButton>("opt5Dice", "&Five Dice")),
      opt6Dice_(Named<QRadioButton>("opt6Dice", "&Six Dice")),
      opt1Player_(Named<QRadioButton>("opt1Player", "&One Player")),
      opt2Players_(Named<QRadioButton>("opt2Players", "&Two Players")),
      txtName1_(NameField("txtName1", "Name of the first player")),
      txtName2_(NameField("txtName2", "Name of the second player")),
      chkShowStatusBar_(Named<QCheckBox>("chkShowStatusBar", "S&how Status Bar")),
      chkQuitGame_(Named<QCheckBox>("chkQuitGame", "C&onfirm Quit Game")),
      chkConfirmExit_(Named<QCheckBox>("chkConfirmExit", "&Confirm on Exit")),
      optShowNone_(Named<QRadioButton>("optShowNone", "&None")),
      optShowSplash_(Named<QRadioButton>("optShowSplash", "S&plash Screen")),
      optShowDialog_(Named<QRadioButton>("optShowDialog", "&Dialog Screen")),
      sldVolume_(Named<QSlider>("sldVolume", Qt::Horizontal)) {
    auto* tabs = Named<QTabWidget>("SSTab1");
    tabs->addTab(MakePage(), "Options");
    auto* all = new QVBoxLayout(this);
    all->addWidget(tabs);
    all->addLayout(MakeButtons(art));
    Show();
    Connect();
    constexpr double middle = 0.5, lowerOverWelcome = 1 / 1.5;
    PlaceOver(owner, 0, game.session.OpenedFromGame ? middle : lowerOverWelcome);
    (form_.optYahtzee ? optYahtzee_ : optYamb_)->setFocus();
}

QWidget* frmOptions::MakePage() {
    auto* page = new QWidget;
    auto* grid = new QGridLayout(page);
    grid->addWidget(Group("Frame2", " Type of Game ", {optYahtzee_, optYamb_}), 0, 0);
    grid->addWidget(Group("Frame1", " Number of Dice ", {opt5Dice_, opt6Dice_}), 0, 1);
    grid->addWidget(Group("Frame3", " Number of Players ", {opt1Player_, opt2Players_}), 1, 0);
    grid->addWidget(Group("Frame6", " Players Names ", {txtName1_, txtName2_}), 1, 1);
    grid->addWidget(MakeGeneral(), 2, 0, 1, 2);
    grid->addWidget(MakeVolume(), 3, 0, 1, 2);
    return page;
}

QGroupBox* frmOptions::MakeGeneral() {
    auto* checks = new QVBoxLayout;
    for (QCheckBox* check : {chkShowStatusBar_, chkQuitGame_, chkConfirmExit_}) checks->addWidget(check);
    checks->addStretch();
    auto* group = NamedGroup("Frame4", " General Options ");
    auto* row = new QHBoxLayout(group);
    row->addLayout(checks, 1);
    row->addWidget(Group("Frame5", " Show at Start Up ", {optShowNone_, optShowSplash_, optShowDialog_}), 1);
    return group;
}

QGroupBox* frmOptions::MakeVolume() {
    sldVolume_->setRange(0, fullVolume);
    sldVolume_->setSingleStep(1);
    sldVolume_->setPageStep(100);
    sldVolume_->setAccessibleName("Music volume");
    auto* group = NamedGroup("Frame7", " Adjust Music Volume ");
    auto* row = new QHBoxLayout(group);
    row->addWidget(Named<QLabel>("Label1", "Min"));
    row->addWidget(sldVolume_);
    row->addWidget(Named<QLabel>("Label2", "Max"));
    return group;
}

QBoxLayout* frmOptions::MakeButtons(Art& art) {
    auto* ok = Named<QPushButton>("HoverCommand1", "  &OK  ");
    auto* cancel = Named<QPushButton>("HoverCommand2", "&Cancel");
    ok->setAccessibleName("OK");
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &frmOptions::Ok);
    connect(cancel, &QPushButton::clicked, this, &frmOptions::reject);
    SetPointers(game_, art, {ok, cancel});
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(ok);
    row->addWidget(cancel);
    return row;
}

void frmOptions::Connect() {
    connect(opt1Player_, &QRadioButton::clicked, this, [this] { ChoosePlayers(opt1Player_Click); });
    connect(opt2Players_, &QRadioButton::clicked, this, [this] { ChoosePlayers(opt2Players_Click); });
    for (QRadioButton* button : findChildren<QRadioButton*>())
        connect(button, &QRadioButton::toggled, this, &frmOptions::StopTabAtChecked);
    connect(sldVolume_, &QSlider::valueChanged, this, [this](int volume) { sldVolume_Change(game_, form_, volume); });
}

// Tab stops at the checked button of a group alone, from where the arrows lead to the others.
void frmOptions::StopTabAtChecked() {
    for (QRadioButton* button : findChildren<QRadioButton*>())
        button->setFocusPolicy(button->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
}

void frmOptions::Show() {
    (form_.optYahtzee ? optYahtzee_ : optYamb_)->setChecked(true);
    (form_.opt5Dice ? opt5Dice_ : opt6Dice_)->setChecked(true);
    (form_.opt1Player ? opt1Player_ : opt2Players_)->setChecked(true);
    txtName1_->setText(QString::fromStdString(form_.txtName1));
    txtName2_->setText(QString::fromStdString(form_.txtName2));
    txtName2_->setEnabled(form_.txtName2Enabled);
    chkShowStatusBar_->setChecked(form_.chkShowStatusBar);
    chkShowStatusBar_->setEnabled(form_.chkShowStatusBarEnabled);
    chkQuitGame_->setChecked(form_.chkQuitGame);
    chkConfirmExit_->setChecked(form_.chkConfirmExit);
    const bool splash = form_.showAtStartUp == StartUpWindow::Splash;
    const bool dialog = form_.showAtStartUp == StartUpWindow::Dialog;
    (dialog ? optShowDialog_ : splash ? optShowSplash_ : optShowNone_)->setChecked(true);
    StopTabAtChecked();
    const QSignalBlocker untouched(sldVolume_);  // only a movement by the player writes the setting
    sldVolume_->setValue(form_.sldVolume);
}

void frmOptions::Read() {
    form_.optYahtzee = optYahtzee_->isChecked();
    form_.opt5Dice = opt5Dice_->isChecked();
    form_.txtName1 = txtName1_->text().toStdString();
    form_.txtName2 = txtName2_->text().toStdString();
    form_.chkShowStatusBar = chkShowStatusBar_->isChecked();
    form_.chkQuitGame = chkQuitGame_->isChecked();
    form_.chkConfirmExit = chkConfirmExit_->isChecked();
    form_.showAtStartUp = optShowDialog_->isChecked()   ? StartUpWindow::Dialog
                          : optShowSplash_->isChecked() ? StartUpWindow::Splash
                                                        : StartUpWindow::None;
}

void frmOptions::ChoosePlayers(void (*click)(OptionsForm&)) {
    Read();
    click(form_);
    Show();
}

void frmOptions::Ok() {
    Read();
    OptionsOk(game_, form_);
    accept();
}

void frmOptions::reject() {
    OptionsCancel(game_, form_);
    QDialog::reject();
}

void frmOptions::closeEvent(QCloseEvent* event) {
    event->accept();
    done(Rejected);
}
