#include "dialogs/window/frm_scores2.h"

#include <QEvent>
#include <QHeaderView>
#include <QShortcut>
#include <QTabBar>

#include "kit/controls.h"
#include "kit/size.h"
#include "kit/sized_widgets.h"

namespace {
constexpr int formWidth = 6495;
constexpr int titleHeight = 405;  // the heights given are those of the frame
constexpr QColor listGround(239, 255, 210);
constexpr int tableFont = 13;  // 9.75 points
constexpr int tabFont = 11;
constexpr int smallestFont = 8;
constexpr Place tabsPlace{47, 0, 6400, 6225};
constexpr int rowHeight = 18;  // pixels of the normal size: twenty rows and the header fill the list
constexpr std::array<int, 4> columnWidths{800, 2200, 1550, 1650};
constexpr const char* tabCaptions[] = {"&Yamb - 6 Dice", "&Yamb - 5 Dice", "&Yahtzee - 6 Dice", "&Yahtzee - 5 Dice"};

// What depends on whether the result line is shown, in twips.
struct ScoresLayout {
    int buttonsTop, linesBottom, check1Top, height;
};
constexpr ScoresLayout viewerLayout{6390, 7040, 7100, 7860};
constexpr ScoresLayout resultLayout{7015, 7650, 7720, 8500};

const ScoresLayout& LayoutOf(const ScoresForm& form) { return form.lblScoreVisible ? resultLayout : viewerLayout; }

template <typename Control>
Control* Named(const char* name, QWidget* parent) {
    auto* control = new Control(parent);
    control->setObjectName(name);
    return control;
}

QFont ListFont() {
    QFont font = TableFont(true, tableFont);
    font.setFamilies({"Verdana", "DejaVu Sans", "Liberation Sans"});
    return font;
}

void SetColour(QWidget* widget, QPalette::ColorRole role, const QColor& colour) {
    QPalette palette = widget->palette();
    palette.setColor(role, colour);
    widget->setPalette(palette);
}
}  // namespace

frmScores2::frmScores2(QWidget& owner, Game& game, Art& art)
    : DialogWindow(owner, "frmScores2", "Lucky Cup - Hall of Fame", formWidth, viewerLayout.height - titleHeight),
      game_(game),
      model_(*this, art, devicePixelRatioF()),
      SSTab1_(Named<QTabWidget>("SSTab1", this)),
      LVScores_(Named<QTableView>("LVScores", SSTab1_)),
      lblScore_(Named<QLabel>("lblScore", this)),
      cmdClearTable_(Named<QPushButton>("cmdClearTable", this)),
      cmdReturn_(Named<QPushButton>("cmdReturn", this)),
      Check1_(Named<QCheckBox>("Check1", this)) {
    PlaceOverOwner();
    Equip(game, art, {cmdClearTable_, cmdReturn_});
    form_ = frmScores2_Load(game);
    FixSize(*this, formWidth, LayoutOf(form_).height - titleHeight);
    MakeTabs();
    MakeList();
    cmdClearTable_->setText("&Clear Table");
    cmdReturn_->setText("&Return");
    cmdReturn_->setDefault(true);
    Check1_->setText("&Show Grid Lines");
    Check1_->setChecked(form_.Check1);
    LVScores_->setShowGrid(form_.Check1);
    SSTab1_->setCurrentIndex(form_.tab);
    MakeResult();
    LayOut();
    FitToSize();
    ShowTable();
    Connect();
    LVScores_->setFocus();
}

void frmScores2::MakeTabs() {
    Put(*SSTab1_, tabsPlace);
    for (const char* caption : tabCaptions) SSTab1_->addTab(new QWidget, caption);
    QTabBar* strip = SSTab1_->tabBar();
    strip->setAccessibleName("Top scores of");
    strip->setUsesScrollButtons(false);
    strip->installEventFilter(this);
}

void frmScores2::MakeList() {
    Put(*LVScores_, {100 - tabsPlace.left, 375, 6260, 5780});
    LVScores_->setAccessibleName("Top scores");
    SetLetters(*LVScores_, ListFont(), tableFont);
    LVScores_->setFrameStyle(static_cast<int>(QFrame::Panel) | static_cast<int>(QFrame::Sunken));
    LVScores_->setLineWidth(2);
    SetColour(LVScores_, QPalette::Base, listGround);
    LVScores_->setModel(&model_);
    LVScores_->setSelectionMode(QAbstractItemView::SingleSelection);
    LVScores_->setTabKeyNavigation(false);
    LVScores_->setWordWrap(false);
    LVScores_->raise();

    QHeaderView* rows = LVScores_->verticalHeader();
    rows->hide();
    QHeaderView* columns = LVScores_->horizontalHeader();
    columns->setSectionResizeMode(QHeaderView::Fixed);
    columns->setHighlightSections(false);
}

void frmScores2::MakeResult() {
    Put(*lblScore_, {132, 6350, 6230, 585});
    lblScore_->setVisible(form_.lblScoreVisible);
    lblScore_->setTextFormat(Qt::PlainText);
    lblScore_->setText(QString::fromStdString(form_.lblScore).remove('\r'));
    SetColour(lblScore_, QPalette::WindowText, Qt::red);
}

void frmScores2::LayOut() {
    const ScoresLayout& layout = LayoutOf(form_);
    constexpr int left = 40, top = 6280, right = 6440;
    const Place lines[] = {{left, top, right - left, 0},
                           {left, top, 0, layout.linesBottom - top},
                           {left, layout.linesBottom, right - left, 0},
                           {right, top, 0, layout.linesBottom - top}};
    const char* const names[] = {"Line1", "Line2", "Line3", "Line4"};
    for (std::size_t i = 0; i < std::size(lines); ++i) {
        auto* line = new Shape(names[i], this, palette().color(QPalette::Mid));
        Put(*line, lines[i]);
    }
    Put(*cmdClearTable_, {132, layout.buttonsTop, 2000, 555});
    Put(*cmdReturn_, {4362, layout.buttonsTop, 2000, 555});
    Put(*Check1_, {40, layout.check1Top, 2925, 285});
}

void frmScores2::FitToSize() {
    const SizeWithin window(SizeIn(*this));
    FitTabs();
    FitResult();
    FitList();
}

void frmScores2::FitTabs() {
    QTabBar* strip = SSTab1_->tabBar();
    int size = tabFont;
    do strip->setFont(TableFont(false, size));
    while (strip->sizeHint().width() > SSTab1_->width() && --size >= smallestFont);
}

void frmScores2::FitResult() {
    int size = tableFont;
    do lblScore_->setFont(TableFont(true, size));
    while (lblScore_->sizeHint().width() > lblScore_->width() && --size >= smallestFont);
}

void frmScores2::FitList() {
    const int row = SizedDown(rowHeight);
    LVScores_->verticalHeader()->setMinimumSectionSize(row);
    LVScores_->verticalHeader()->setDefaultSectionSize(row);
    const int rowsHeight = 2 * LVScores_->frameWidth() + scoreRecords * row;
    LVScores_->horizontalHeader()->setFixedHeight(LVScores_->height() - rowsHeight);
    for (int i = 0, left = 0; i < static_cast<int>(columnWidths.size()); ++i) {
        const int width = columnWidths[static_cast<std::size_t>(i)];
        LVScores_->setColumnWidth(i, Pixels({left, 0, width, 0}).width());
        left += width;
    }
}

void frmScores2::changeEvent(QEvent* event) {
    DialogWindow::changeEvent(event);
    if (event->type() == QEvent::StyleChange) FitToSize();
}

void frmScores2::Connect() {
    connect(SSTab1_->tabBar(), &QTabBar::tabBarClicked, this, [this](int tab) {
        if (SSTab1_MouseDown(game_, form_, tab)) ShowTable();
    });
    connect(SSTab1_, &QTabWidget::currentChanged, this, [this](int tab) {
        if (SSTab1_Click(game_, form_, tab)) ShowTable();
    });
    connect(cmdClearTable_, &QPushButton::clicked, this, [this] {
        if (cmdClearTable_Click(game_, form_)) ShowTable();
    });
    connect(Check1_, &QCheckBox::toggled, this, [this](bool checked) {
        form_.Check1 = checked;
        LVScores_->setShowGrid(checked);
    });
    connect(cmdReturn_, &QPushButton::clicked, this, &QDialog::accept);
    AddTabShortcut(QKeySequence::NextChild, 1);
    AddTabShortcut(QKeySequence::PreviousChild, -1);
}

void frmScores2::AddTabShortcut(QKeySequence::StandardKey key, int step) {
    connect(new QShortcut(key, this), &QShortcut::activated, this, [this, step] { StepTab(step); });
}

void frmScores2::StepTab(int step) {
    SSTab1_->setCurrentIndex((SSTab1_->currentIndex() + step + SSTab1_->count()) % SSTab1_->count());
}

// All four captions share one accelerator, so it leads to the next tab. The wheel changes no tab.
bool frmScores2::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Shortcut) StepTab(1);
    return event->type() == QEvent::Shortcut || event->type() == QEvent::Wheel ||
           DialogWindow::eventFilter(watched, event);
}

void frmScores2::ShowTable() {
    cmdClearTable_->setEnabled(form_.cmdClearTableEnabled);
    LVScores_->setSelectionBehavior(form_.fullRowSelect ? QAbstractItemView::SelectRows
                                                        : QAbstractItemView::SelectItems);
    model_.SetRows(form_.rows, form_.fullRowSelect);
    if (form_.selectedRow == 0) return;
    LVScores_->selectRow(form_.selectedRow - 1);
    LVScores_->scrollTo(LVScores_->currentIndex());
}

void frmScores2::done(int result) {
    frmScores2_Unload(game_, form_);
    DialogWindow::done(result);
}
