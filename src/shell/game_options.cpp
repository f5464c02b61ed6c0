#include "shell/game_options.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "core/shared_state.h"
#include "core/strings.h"
#include "platform/dialogs.h"
#include "platform/services.h"
#include "platform/text.h"
#include "shell/catalogue.h"
#include "shell/choose_list.h"
#include "shell/screens.h"

namespace wm {

int HowToPointSize(int length) {
    if (length < 225) return 18;
    if (length < 350) return 14;
    return 12;
}

GameOptions::GameOptions(QWidget* parent) : Backdrop("images/wm-back.jpg", parent) {
    SharedState& s = Shared();
    setObjectName("GameOptions");
    const QString game = toQ(s.CurrentGame);
    setWindowTitle("How to Play " + game);
    card_ = FindCard(s.CurrentGame);
    static const GameCard kNone{};
    const GameCard& card = card_ ? *card_ : kNone;
    const OptionsRow& row = card.options;

    QVBoxLayout* layout = CentredPanel(this, {.side = 1, .width = 12, .height = 14, .spacing = 12},
                                       "How to Play " + game);
    QWidget* panel = layout->parentWidget();

    auto* columns = new QHBoxLayout;
    columns->setSpacing(24);
    layout->addLayout(columns, 1);

    // Left: the game's picture and how to play.
    auto* left = new QVBoxLayout;
    auto* Image2 = new QLabel(panel);
    Image2->setObjectName("Image2");
    const int picHeight = ScreenFont(10).pointSize() * 13;
    Image2->setPixmap(RoundedPicture(LoadPicture(toQ(card.button)), picHeight));
    Image2->setAlignment(Qt::AlignCenter);
    left->addWidget(Image2);
    auto* Frame4 = new QGroupBox("How to Play:", panel);
    Frame4->setObjectName("Frame4");
    Frame4->setFont(ScreenFont(13, true));
    auto* f4 = new QVBoxLayout(Frame4);
    Label7 = new QLabel(toQ(card.howTo), Frame4);
    Label7->setObjectName("Label7");
    Label7->setWordWrap(true);
    Label7->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    // Sized through the style sheet: a style sheet above it would otherwise reset the font.
    Label7->setStyleSheet(QString("color: #1d2a3a; font-size: %1pt; font-weight: normal;")
                              .arg(ScreenFont(HowToPointSize(Len(card.howTo))).pointSize()));
    // Every how-to text fits the frame at the size chosen for its length.
    f4->addWidget(Label7, 1);
    left->addWidget(Frame4, 1);
    columns->addLayout(left, 3);

    // Right: difficulty, the game's option, sound.
    auto* right = new QVBoxLayout;
    right->setSpacing(14);
    Frame3 = new QGroupBox("Difficulty", panel);
    Frame3->setObjectName("Frame3");
    Frame3->setFont(ScreenFont(13, true));
    auto* f3 = new QVBoxLayout(Frame3);
    auto* sliderRow = new QHBoxLayout;
    auto* Label3 = new QLabel(toQ(row.easyLabel), Frame3);
    Label3->setObjectName("Label3");
    auto* Label5 = new QLabel("Hard!", Frame3);
    Label5->setObjectName("Label5");
    SpeedBar = new QSlider(Qt::Horizontal, Frame3);
    SpeedBar->setObjectName("SpeedBar");
    int min = row.min, max = row.max, start = row.start;
    if (row.clamped) {
        // The list is loaded already: the slider cannot ask for more words than it has.
        if (start > s.WordCount) start = s.WordCount;
        if (max > s.WordCount) max = s.WordCount;
        if (min > max) min = max;
    }
    SpeedBar->setRange(min, max);
    SpeedBar->setValue(start);
    SpeedBar->setPageStep(1);
    SpeedBar->setTickPosition(QSlider::TicksBelow);
    SpeedBar->setTickInterval(max - min > 30 ? 10 : 1);
    auto* level = new QLabel(Frame3);
    level->setObjectName("Level");
    level->setFont(ScreenFont(20, true));
    level->setAlignment(Qt::AlignCenter);
    level->setStyleSheet("color: #2f6fc4;");
    level->setNum(SpeedBar->value());
    connect(SpeedBar, &QSlider::valueChanged, level, qOverload<int>(&QLabel::setNum));
    sliderRow->addWidget(Label3);
    sliderRow->addWidget(SpeedBar, 1);
    sliderRow->addWidget(Label5);
    f3->addLayout(sliderRow);
    f3->addWidget(level);
    Frame3->setVisible(row.hasDifficulty);
    right->addWidget(Frame3);

    Frame2 = new QGroupBox(toQ(row.frameCaption), panel);
    Frame2->setObjectName("Frame2");
    Frame2->setFont(ScreenFont(13, true));
    auto* f2 = new QVBoxLayout(Frame2);
    Option1 = new QRadioButton(toQ(row.option1), Frame2);
    Option1->setObjectName("Option1");
    Option2 = new QRadioButton(toQ(row.option2), Frame2);
    Option2->setObjectName("Option2");
    Option2->setChecked(true);
    f2->addWidget(Option1);
    f2->addWidget(Option2);
    const bool showFrame2 =
        row.frame == OptionFrame::Shown ||
        (row.frame == OptionFrame::ShownUnlessWordsOnly && s.WordsOnly != kTrue);
    Frame2->setVisible(showFrame2);
    right->addWidget(Frame2);

    Frame1 = new QGroupBox("Sound", panel);
    Frame1->setObjectName("Frame1");
    Frame1->setFont(ScreenFont(13, true));
    auto* f1 = new QVBoxLayout(Frame1);
    SoundONOp = new QRadioButton("Sound On", Frame1);
    SoundONOp->setObjectName("SoundONOp");
    SoundOFFOp = new QRadioButton("Sound Off", Frame1);
    SoundOFFOp->setObjectName("SoundOFFOp");
    f1->addWidget(SoundONOp);
    f1->addWidget(SoundOFFOp);
    (s.SoundDefault == kTrue ? SoundONOp : SoundOFFOp)->setChecked(true);
    right->addWidget(Frame1);
    right->addStretch(1);
    for (auto* r : {Option1, Option2, SoundONOp, SoundOFFOp}) r->setFont(ScreenFont(13));
    for (auto* l : {Label3, Label5}) l->setFont(ScreenFont(12, true));
    columns->addLayout(right, 2);

    NavigationRow nav = MakeNavigationRow(panel, "<Back", "Continue>");
    Command1 = nav.onward;
    Command2 = nav.back;
    Command1->setDefault(true);
    layout->addLayout(nav.layout);
    connect(Command1, &QPushButton::clicked, this, &GameOptions::continueOn);
    connect(Command2, &QPushButton::clicked, this, &GameOptions::goBack);

    s.GameOptionOn = kTrue;
    s.MaxDifficulty = static_cast<short>(SpeedBar->maximum());
    setFocusPolicy(Qt::StrongFocus);
}

void GameOptions::leaveFor(const QString& screen) {
    if (!OpenScreen(screen, this)) {
        dialogs().message(
            toQ(Shared().CurrentGame) + " is not available yet. Please choose another game.",
            "Wordmere");
    }
}

void GameOptions::continueOn() {
    SharedState& s = Shared();
    s.HowToText = card_ ? card_->howTo : std::string();
    s.Difficulty = SpeedBar->value();
    s.GameOptionOn = Option2->isChecked() ? kTrue : kFalse;
    s.SoundOn = SoundONOp->isChecked() ? kTrue : kFalse;
    // The list-first games have their list already: on to the game itself.
    leaveFor(listFirst() ? toQ(card_->screen) : QString("ChooseList"));
}

bool GameOptions::listFirst() const {
    return card_ && card_->firstScreen == "ChooseList";
}

void GameOptions::goBack() {
    const std::string g = LCase(Shared().CurrentGame);
    if (listFirst()) {
        leaveFor("ChooseList");
    } else if (g == "flash cards") {
        leaveFor("FlashCardOptions");
    } else {
        // The quiz's own test looks for a name no game has, so it comes here too.
        leaveFor("Title");
    }
}

void GameOptions::keyPressEvent(QKeyEvent* e) {
    if (e->key() == Qt::Key_Escape) {
        leaveFor("Title");
        return;
    }
    Backdrop::keyPressEvent(e);
}

}  // namespace wm
