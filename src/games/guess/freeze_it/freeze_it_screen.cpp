#include "games/guess/freeze_it/freeze_it_screen.h"

#include <QKeyEvent>
#include <QMenuBar>
#include <QTimer>

#include "core/rng.h"
#include "core/shared_state.h"
#include "core/strings.h"
#include "platform/screen_metrics.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "platform/text.h"
#include "shell/game_registry.h"
#include "shell/style.h"

namespace wm {

using namespace freeze_it;

namespace {
constexpr int kReadyMs = 1600;    // before the first word thaws
constexpr int kBetweenMs = 1100;  // "Word 4 of 10" before the next one thaws
constexpr int kRightMs = 1900;
constexpr int kMeltedMs = 2600;
constexpr int kEndMs = 2300;
constexpr int kFrameMs = 33;

GameMenuNames menuNames() {
    GameMenuNames menu;
    // The palette's key for this game; the score file follows it once the palette is used.
    menu.foreignKey = "freeze it";
    return menu;
}

// The labels' panels are drawn by the scene; the labels hold only their text.
const char* kPanel = "QLabel { color: white; background: transparent; padding: 6px 18px; }";
const char* kBox =
    "QLineEdit { color: #0c3478; background: #f4fbff; border: 4px solid #5fb8ec;"
    " border-radius: 14px; padding: 2px 14px; selection-background-color: #9fd8ff; }";
}  // namespace

FreezeIt::FreezeIt(QWidget* parent)
    : QWidget(parent),
      frame_(this, menuNames(), [this] { NewGame(); }),
      Timer1(frame_.timer("Timer1", thawInterval(3), [this] { thawTick(); })),
      Timer2(frame_.timer("Timer2", kFrameMs, [this] { frameTick(); })),
      Timer3(frame_.pauseTimer("Timer3", kReadyMs)),
      Timer4(frame_.timer(
          "Timer4", 1300, [this] { scene_->banner({}); }, true)) {
    setWindowTitle("Freeze-It!");
    setFocusPolicy(Qt::StrongFocus);
    frame_.setMusic(MusicKind::Shared, "freeze.mid");
    frame_.setForeign([this](const QString& c) { insertChar(c); });
    // The word is hidden in the ice: its meaning, the clue on the screen, is heard until the
    // word is answered or has melted into view.
    frame_.setSayIt([this] {
        const SharedState& s = Shared();
        return SecretWord(game_.phase() == Phase::Right || game_.phase() == Phase::Melted,
                          s.WordsOnly == kFalse && !Trim(s.TheMeaning).empty());
    });

    scene_ = new FreezeScene(this);
    frame_.menuBar()->raise();

    Label1 = new QLabel(this);
    Label1->setObjectName("Label1");
    Label1->setWordWrap(true);
    Label1->setAlignment(Qt::AlignCenter);
    Label1->setStyleSheet(kPanel);
    Label2 = new QLabel(this);
    Label2->setObjectName("Label2");
    Label3 = new QLabel(this);
    Label3->setObjectName("Label3");
    Label3->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    for (QLabel* l : {Label2, Label3})
        l->setStyleSheet("QLabel { color: #fff6c8; background: transparent; padding: 2px 16px; }");
    Label4 = new QLabel(this);
    Label4->setObjectName("Label4");
    Label4->setAlignment(Qt::AlignCenter);
    Label4->setStyleSheet("QLabel { color: white; background: transparent; }");

    Text1 = new QLineEdit(this);
    Text1->setObjectName("Text1");
    Text1->setStyleSheet(kBox);
    Text1->setAlignment(Qt::AlignCenter);
    Text1->installEventFilter(this);
    connect(Text1, &QLineEdit::returnPressed, this, &FreezeIt::checkAnswer);
    Command1 = MakeButton("Check", this, true);
    Command1->setObjectName("Command1");
    connect(Command1, &QPushButton::clicked, this, &FreezeIt::checkAnswer);
    Command2 = MakeButton("Freeze!", this);
    Command2->setObjectName("Command2");
    connect(Command2, &QPushButton::clicked, this, &FreezeIt::freezeNow);
    for (QPushButton* b : {Command1, Command2}) b->setFocusPolicy(Qt::NoFocus);
    showBox(false);
    Command2->hide();

    resize(ScreenMetrics::screenSize());
    QTimer::singleShot(0, &frame_, [this] { frame_.newGame(); });
}

void FreezeIt::NewGame() {
    SharedState& s = Shared();
    showBox(false);
    Command2->hide();
    Label4->clear();
    if (!game_.start(s, TheRng())) {
        scene_->newWord({});
        frame_.refuse(kNoWords, "Freeze-It!");
        return;
    }
    Timer1.setInterval(thawInterval(s.Difficulty));
    Timer2.start();
    showWord();
    showScore();
    scene_->banner("Get ready!");
    setFocus();
    frame_.pauseThen(kReadyMs, [this] {
        frame_.startMusic();
        startThaw();
    });
}

void FreezeIt::showWord() {
    const SharedState& s = Shared();
    scene_->newWord(game_.blocks());
    Label2->setText(QString("Word %1 of %2").arg(game_.wordNumber()).arg(kWordsPerGame));
    // The meaning as a clue, where the list has one.
    const bool clue = s.WordsOnly == kFalse && !Trim(s.TheMeaning).empty();
    Label1->setText(clue ? toQ("Meaning: " + s.TheMeaning) : QString());
    Label1->setVisible(clue);
    fitClue();
    showPanels();
}

void FreezeIt::startThaw() {
    scene_->banner({});
    Label4->setText("Press SPACE to freeze the ice!");
    Command2->show();
    Timer1.start();
    setFocus();
}

void FreezeIt::thawTick() {
    const int i = game_.thaw(TheRng());
    if (i < 0) return;
    scene_->thawed(i);
    if (game_.phase() == Phase::Melted) {
        wordMelted();
        return;
    }
    sound().effect("freeze-drip.wav", SoundMode::Overlap);
}

void FreezeIt::frameTick() {
    scene_->step(Ticker::get().now());
}

void FreezeIt::freezeNow() {
    if (frame_.leaving() || !game_.freeze()) return;
    Timer1.stop();
    Timer4.stop();
    scene_->banner({});
    scene_->frozen(true);
    sound().effect("freeze-crack.wav");
    Command2->hide();
    Label4->setText("Type the word and press ENTER");
    showBox(true);
}

void FreezeIt::checkAnswer() {
    if (frame_.leaving() || game_.phase() != Phase::Frozen) return;
    SharedState& s = Shared();
    switch (game_.check(s, fromQ(Text1->text()))) {
        case Answer::Empty:
            Text1->setFocus();
            return;
        case Answer::Right:
            showBox(false);
            Label4->clear();
            showScore();
            scene_->right();
            scene_->banner(QString("Right! +%1").arg(game_.lastPoints()), FreezeScene::Mood::Good);
            sound().effect("freeze-right.wav");
            frame_.pauseThen(kRightMs, [this] { nextWord(); });
            return;
        case Answer::Wrong:
            showBox(false);
            showScore();
            scene_->wrong();
            scene_->banner(QString("Not quite! -%1").arg(kWrongCost), FreezeScene::Mood::Bad);
            sound().effect("freeze-wrong.wav");
            Timer4.start();
            Label4->setText("Press SPACE to freeze the ice!");
            Command2->show();
            Timer1.start();
            setFocus();
            return;
    }
}

void FreezeIt::cancelAnswer() {
    if (game_.phase() != Phase::Frozen) return;
    game_.unfreeze();
    scene_->frozen(false);
    showBox(false);
    startThaw();
}

void FreezeIt::wordMelted() {
    Timer1.stop();
    Timer4.stop();
    showBox(false);
    Command2->hide();
    Label4->clear();
    scene_->melted();
    scene_->banner(toQ("The word was: " + game_.word()), FreezeScene::Mood::Cold);
    sound().effect("freeze-melt.wav");
    frame_.pauseThen(kMeltedMs, [this] { nextWord(); });
}

void FreezeIt::nextWord() {
    if (game_.lastWord()) {
        endGame();
        return;
    }
    if (!game_.nextWord(Shared(), TheRng())) {
        frame_.refuse(kNoWords, "Freeze-It!");
        return;
    }
    showWord();
    scene_->banner(QString("Word %1 of %2").arg(game_.wordNumber()).arg(kWordsPerGame));
    frame_.pauseThen(kBetweenMs, [this] { startThaw(); });
}

void FreezeIt::endGame() {
    SharedState& s = Shared();
    Command2->hide();
    Label4->clear();
    if (s.Score > 0) {
        scene_->gameWon();
        scene_->banner(QString("You did it! %1 points").arg(frame_.scoreText(s.Score)),
                       FreezeScene::Mood::Good);
        sound().effect("freeze-win.wav");
        frame_.pauseThen(kEndMs, [this] { frame_.wonGame(); });
        return;
    }
    // Nothing won: no table, the words shown, and another go offered.
    scene_->gameLost();
    scene_->banner("Brrr! The ice won this time.", FreezeScene::Mood::Bad);
    sound().effect("freeze-lose.wav");
    QStringList words;
    for (const auto& w : game_.missed()) words << toQ(w);
    words.removeDuplicates();
    const QString text = "The ice kept its secrets this time! The words were: " + words.join(", ") +
                         ". Would you like to try again?";
    frame_.pauseThen(kEndMs, [this, text] { frame_.askTryAgain(text, "Try Again?"); });
}

void FreezeIt::showPanels() {
    std::vector<QRect> panels{Label2->geometry(), Label3->geometry()};
    if (Label1->isVisibleTo(this)) panels.push_back(Label1->geometry());
    scene_->setPanels(panels);
}

void FreezeIt::showScore() {
    Label3->setText("Score: " + frame_.scoreText(Shared().Score));
}

void FreezeIt::showBox(bool on) {
    Text1->clear();
    Text1->setVisible(on);
    Command1->setVisible(on);
    if (on) Text1->setFocus();
}

void FreezeIt::insertChar(const QString& c) {
    // A letter from the palette while the ice thaws freezes it first, as a typed one does.
    if (game_.phase() == Phase::Thawing) freezeNow();
    if (!Text1->isVisible() || c.isEmpty()) return;
    const QString t = Text1->text();
    const int at = Text1->hasSelectedText() ? Text1->selectionStart() : Text1->cursorPosition();
    const int gone = Text1->hasSelectedText() ? int(Text1->selectedText().size()) : 0;
    Text1->setText(t.left(at) + c + t.mid(at + gone));
    Text1->setFocus();
    Text1->setCursorPosition(int(Text1->text().size()));
}

void FreezeIt::keyPressEvent(QKeyEvent* e) {
    const QString t = e->text();
    if (Text1->isVisible()) {
        // The answer box lost its focus (a click on a button): the keys still go to it.
        Text1->setFocus();
        if (e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter)
            checkAnswer();
        else if (!t.isEmpty() && t[0].isPrint())
            Text1->insert(t);
        return;
    }
    if (e->key() == Qt::Key_Space) {
        freezeNow();
        return;
    }
    // Typing straight away freezes the ice and starts the answer.
    if (game_.phase() == Phase::Thawing && Timer1.isActive() && t.size() == 1 && t[0].isLetter()) {
        freezeNow();
        if (Text1->isVisible()) Text1->insert(t);
        return;
    }
    QWidget::keyPressEvent(e);
}

bool FreezeIt::eventFilter(QObject* watched, QEvent* e) {
    if (watched == Text1 && e->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(e)->key() == Qt::Key_Escape) {
        cancelAnswer();
        return true;
    }
    return QWidget::eventFilter(watched, e);
}

void FreezeIt::fitClue() {
    if (Label1->text().isEmpty() || Label1->width() <= 0) return;
    // A long meaning takes a smaller type to stay inside its panel.
    for (int pt = 22; pt >= 9; --pt) {
        Label1->setFont(ScreenFont(pt, true));
        const int inner = Label1->width() - 40;
        if (Label1->heightForWidth(Label1->width()) <= Label1->height() ||
            Label1->fontMetrics()
                    .boundingRect(QRect(0, 0, inner, 10000), Qt::TextWordWrap, Label1->text())
                    .height() <= Label1->height() - 16)
            break;
    }
}

void FreezeIt::resizeEvent(QResizeEvent*) {
    const int w = width(), h = height(), top = frame_.menuHeight();
    const double H = h - top;
    auto y = [&](double f) { return top + int(H * f); };
    scene_->setGeometry(0, 0, w, h);
    QFont hud = ScreenFont(20, true);
    for (QLabel* l : {Label2, Label3}) l->setFont(hud);
    Label2->setGeometry(w / 30, y(0.015), w * 3 / 10, int(H * 0.065));
    Label3->setGeometry(w - w / 30 - w * 3 / 10, y(0.015), w * 3 / 10, int(H * 0.065));
    Label1->setGeometry(w / 10, y(0.095), w * 8 / 10, int(H * 0.16));
    fitClue();
    showPanels();
    scene_->setBlockArea(QRect(w / 25, y(0.37), w - 2 * w / 25, int(H * 0.35)));
    Label4->setFont(ScreenFont(18, true));
    Label4->setGeometry(w / 6, y(0.75), w * 4 / 6, int(H * 0.055));
    const int boxH = int(H * 0.085), boxW = w * 9 / 20, bw = w / 8;
    const int rowY = y(0.815);
    QFont big = ScreenFont(24, true);
    big.setPixelSize(boxH * 11 / 20);
    Text1->setFont(big);
    Text1->setGeometry((w - boxW - bw - w / 60) / 2, rowY, boxW, boxH);
    Command1->setGeometry(Text1->geometry().right() + w / 60, rowY, bw, boxH);
    Command2->setGeometry((w - w / 5) / 2, rowY, w / 5, boxH);
    for (QPushButton* b : {Command1, Command2}) b->setFont(ScreenFont(18, true));
}

WM_REGISTER_GAME("Freeze-It", FreezeIt, "images/freeze-back.svg", "images/freeze-ice.svg",
                 "sounds/freeze-drip.wav", "sounds/freeze-crack.wav", "sounds/freeze-right.wav",
                 "sounds/freeze-wrong.wav", "sounds/freeze-melt.wav", "sounds/freeze-win.wav",
                 "sounds/freeze-lose.wav", "sounds/freeze.mid");

}  // namespace wm
