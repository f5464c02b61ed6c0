#include "games/puzzles/word_search/word_search_screen.h"

#include <QHBoxLayout>
#include <QTimer>
#include <QVBoxLayout>

#include "core/rng.h"
#include "core/shared_state.h"
#include "core/strings.h"
#include "platform/dialogs.h"
#include "platform/screen_metrics.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "platform/text.h"
#include "shell/game_registry.h"

namespace wm {

namespace ws = word_search;

namespace {
const char* kPanelText = "color: #1d2a55;";
const char* kScorePink =
    "QLabel { background: rgb(255, 192, 192); color: #1d2a55;"
    " border-radius: 8px; padding: 4px 10px; }";
const char* kScoreGreen =
    "QLabel { background: rgb(192, 255, 192); color: #1d2a55;"
    " border-radius: 8px; padding: 4px 10px; }";
// The largest a cell is drawn, so that a small puzzle stays a puzzle and not a poster.
constexpr int kMaxCell = 78;
}  // namespace

WordSearchForm::WordSearchForm(QWidget* parent)
    : Backdrop("images/wm-back.jpg", parent),
      frame_(this, GameMenuNames{}, [this] { NewGame(); }),
      Timer1(frame_.timer("Timer1", 1000,
                          [this] {
                              ws::countSecond(ws_);
                              TimeLabel->setText("Time: " + QString::number(ws_.Seconds));
                          })),
      FlashTimer(frame_.timer("FlashTimer", 50, [this] { flash(); })) {
    setWindowTitle("Word Search");
    frame_.setMusic(MusicKind::Shared, "music.mid");
    // Timer1 runs from the opening and is not restarted with a round (see setTimer1).
    frame_.keepOnRestart("Timer1");

    LetterBox = new WordSearchBoard(this);
    LetterBox->setPuzzle(&ws_);
    connect(LetterBox, &WordSearchBoard::pressed, this,
            [this](int cell) { afterTry(ws::mouseDown(Shared(), ws_, cell, TheRng())); });
    connect(LetterBox, &WordSearchBoard::dragged, this,
            [this](double x, double y, double w, double h) {
                afterTry(ws::mouseMove(Shared(), ws_, x, y, w, h, TheRng()));
            });
    connect(LetterBox, &WordSearchBoard::released, this, [this](int cell, bool clicked) {
        ws::mouseUp(ws_);
        // A click tries its cell again after the mouse-down did, as every click on a cell does.
        if (clicked && LetterBox->isVisible()) afterTry(ws::tryCell(Shared(), ws_, cell, TheRng()));
    });

    Frame1 = new Panel(this);
    Frame1->setObjectName("Frame1");
    auto* col = new QVBoxLayout(Frame1);
    col->setContentsMargins(22, 20, 22, 20);
    col->setSpacing(12);
    Directlabel = new QLabel(Frame1);
    Directlabel->setObjectName("Directlabel");
    Directlabel->setWordWrap(true);
    Directlabel->setFont(ScreenFont(11));
    Directlabel->setStyleSheet(kPanelText);
    Label1 = new QLabel("Find this one:", Frame1);
    Label1->setObjectName("Label1");
    Label1->setFont(ScreenFont(13, true));
    Label1->setStyleSheet("color: #6a3d14;");
    CardLabel = new QLabel(Frame1);
    CardLabel->setObjectName("CardLabel");
    CardLabel->setWordWrap(true);
    CardLabel->setAlignment(Qt::AlignCenter);
    CardLabel->setStyleSheet(
        "QLabel { color: #102060; background: #fff7d6; border: 3px solid #e0b050;"
        " border-radius: 12px; padding: 8px; }");
    ShowScroll = new QScrollBar(Qt::Horizontal, Frame1);
    ShowScroll->setObjectName("ShowScroll");
    ShowScroll->setMinimumHeight(26);
    connect(ShowScroll, &QScrollBar::valueChanged, this, [this](int v) {
        ws::scrollTo(Shared(), ws_, v);
        if (!ws_.flashing) {
            showWord();
            ClearButton->setEnabled(false);
            LetterBox->update();
        }
    });
    WLLabel = new QLabel(Frame1);
    WLLabel->setObjectName("WLLabel");
    ScoreLabel = new QLabel(Frame1);
    ScoreLabel->setObjectName("ScoreLabel");
    ScoreLabel->setStyleSheet(kScorePink);
    TimeLabel = new QLabel("Time: 0", Frame1);
    TimeLabel->setObjectName("TimeLabel");
    for (QLabel* l : {WLLabel, ScoreLabel, TimeLabel}) l->setFont(ScreenFont(15, true));
    WLLabel->setStyleSheet(kPanelText);
    TimeLabel->setStyleSheet(kPanelText);
    ClearButton = MakeButton("Clear", Frame1);
    ClearButton->setObjectName("ClearButton");
    HintButton = MakeButton("Hint", Frame1, true);
    HintButton->setObjectName("HintButton");
    connect(ClearButton, &QPushButton::clicked, this, &WordSearchForm::clear);
    connect(HintButton, &QPushButton::clicked, this, &WordSearchForm::hint);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(ClearButton);
    buttons->addWidget(HintButton);
    col->addWidget(Directlabel);
    col->addSpacing(6);
    col->addWidget(Label1);
    col->addWidget(CardLabel);
    col->addWidget(ShowScroll);
    col->addSpacing(6);
    col->addWidget(WLLabel);
    col->addWidget(ScoreLabel);
    col->addWidget(TimeLabel);
    col->addStretch(1);
    col->addLayout(buttons);

    OopsLabel = new QLabel("Click the \"Clear\" button if you make a mistake.", this);
    OopsLabel->setObjectName("OopsLabel");
    OopsLabel->setFont(ScreenFont(13, true));
    OopsLabel->setStyleSheet(
        "color: white; background: rgba(20, 50, 90, 170); border-radius: 10px;"
        " padding: 4px 14px;");

    MovieBackBox = new Movie(this);
    MovieBackBox->setObjectName("MovieBackBox");
    MovieBackBox->hide();
    FWMovie = new Movie(this);
    FWMovie->setObjectName("FWMovie");
    FWMovie->load("fireworks.swf");
    FWMovie->hide();

    setTimer1(true);
    resize(ScreenMetrics::screenSize());
    QTimer::singleShot(0, &frame_, [this] { frame_.newGame(); });
}

// Restart, High Scores and Quit act only while Timer1 runs. The end of a game stops it and a new
// round does not start it again, so after "try again" they stay idle until that game is over.
// Deliberate; Escape, which acts as Quit, is idle with them.
void WordSearchForm::setTimer1(bool on) {
    if (on) {
        Timer1.start();
    } else {
        Timer1.stop();
    }
    for (auto e : {GameFrame::Entry::Restart, GameFrame::Entry::Scores, GameFrame::Entry::Quit})
        if (QAction* a = frame_.entry(e)) a->setEnabled(on);
    frame_.setEscapeQuits(on);
}

void WordSearchForm::NewGame() {
    MovieBackBox->stop();
    MovieBackBox->hide();
    FWMovie->stop();
    FWMovie->hide();
    SharedState& s = Shared();
    const ws::BuildResult built = ws::startRound(s, ws_, TheRng());
    if (!built.ok) {
        LetterBox->hide();
        frame_.refuse(toQ(built.message), toQ(built.title));
        return;
    }
    Directlabel->setText(toQ(ws_.directions));
    WLLabel->setText("Words Left: " + QString::number(ws_.WordsLeft));
    ScoreLabel->setStyleSheet(kScorePink);
    showScore();
    // A word clue is one short line, shown large; a definition may run over several lines.
    CardLabel->setFont(ws_.clueIsDefinition ? ScreenFont(16, true) : ScreenFont(26, true));
    HintButton->setVisible(ws_.clueIsDefinition);
    ClearButton->setEnabled(false);
    {
        const QSignalBlocker block(ShowScroll);
        ShowScroll->setRange(1, s.PuzzleWordCount);
        ShowScroll->setValue(1);
    }
    showWord();
    setPlaying(true);
    layoutBoard();
    frame_.startMusic();
}

void WordSearchForm::setPlaying(bool on) {
    for (QWidget* w : std::initializer_list<QWidget*>{LetterBox, Frame1, OopsLabel})
        w->setVisible(on);
    if (on) HintButton->setVisible(ws_.clueIsDefinition);
}

void WordSearchForm::showWord() {
    CardLabel->setText(toQ(ws_.cardText));
}

void WordSearchForm::showScore() {
    ScoreLabel->setText("Score: " + toQ(NumText(Shared().Score)));
}

void WordSearchForm::afterTry(ws::TryResult result) {
    ClearButton->setEnabled(ws_.clearEnabled);
    LetterBox->update();
    if (result != ws::TryResult::Found && result != ws::TryResult::LastFound) return;
    FlashTimer.start();
    if (result == ws::TryResult::LastFound) return;  // the labels keep their last values
    {
        const QSignalBlocker block(ShowScroll);
        ShowScroll->setMaximum(ws_.WordsLeft);
        ShowScroll->setValue(Shared().WordIndex);
    }
    WLLabel->setText("Words Left: " + QString::number(ws_.WordsLeft));
    showScore();
    showWord();
}

void WordSearchForm::flash() {
    const bool over = ws::flashTick(ws_);
    ScoreLabel->setStyleSheet(ws_.scoreFlash ? kScoreGreen : kScorePink);
    LetterBox->update();
    if (!ws_.flashing) FlashTimer.stop();
    if (over) endGame();
}

void WordSearchForm::clear() {
    ws::clearMarking(ws_);
    ClearButton->setEnabled(false);
    LetterBox->update();
}

void WordSearchForm::hint() {
    dialogs().message(toQ(ws::takeHint(Shared())), "You are looking for:");
}

void WordSearchForm::endGame() {
    frame_.stopMusic();
    setTimer1(false);
    setPlaying(false);
    const int w = width(), top = frame_.menuHeight(), h = height() - top;
    MovieBackBox->setGeometry((w - int(w * 0.6)) / 2, top + (h - int(h * 0.8)) / 2, int(w * 0.6),
                              int(h * 0.8));
    MovieBackBox->load("wsearchwin.swf");
    MovieBackBox->show();
    MovieBackBox->raise();
    MovieBackBox->play(false, frame_.later([this] { fireworks(ws::fireworkCount(TheRng())); }));
}

// One firework after another, each at a random size and place.
void WordSearchForm::fireworks(int left) {
    if (left <= 0) {
        finish();
        return;
    }
    sound().effect("2.wav");
    Rng& rng = TheRng();
    const int top0 = frame_.menuHeight();
    const double w = width(), h = height() - top0;
    const int side = int(Int(rng.Rnd() * (0.2 * w) + 1) + 0.1 * w);
    const int top = int(Int(rng.Rnd() * (h - side) + 1));
    const int x = int(Int(rng.Rnd() * (w - side) + 1));
    FWMovie->setGeometry(x, top0 + top, side, side);
    FWMovie->show();
    FWMovie->raise();
    FWMovie->play(false, frame_.later([this, left] { fireworks(left - 1); }));
}

void WordSearchForm::finish() {
    MovieBackBox->hide();
    FWMovie->hide();
    SharedState& s = Shared();
    s.Score = static_cast<double>(Int(s.Score));
    if (s.Score < 0) {
        dialogs().message(toQ(ws::loseText(s.Score)), windowTitle());
        frame_.askTryAgain("Would you like to try again?", "Another try?");
        return;
    }
    frame_.wonGame();
}

void WordSearchForm::layoutBoard() {
    const int w = width(), h = height();
    const int menuH = frame_.menuHeight();
    const int left = Frame1->x();
    OopsLabel->adjustSize();
    const int areaTop = menuH + h / 40;
    const int areaBottom = h - OopsLabel->height() - h / 25;
    const int g = std::max(1, ws_.GridSize);
    // Room for the grid and its frame of half a cell each side.
    const int cell =
        std::min({int(left * 0.94) / (g + 1), (areaBottom - areaTop) / (g + 1), kMaxCell});
    LetterBox->setCellSize(cell);
    const int cx = left / 2;
    LetterBox->move(cx - LetterBox->width() / 2,
                    areaTop + (areaBottom - areaTop - LetterBox->height()) / 2);
    OopsLabel->move(cx - OopsLabel->width() / 2, LetterBox->geometry().bottom() + h / 60);
    (void)w;
}

void WordSearchForm::resizeEvent(QResizeEvent*) {
    const int w = width(), h = height();
    const int menuH = frame_.menuHeight();
    const int pw = int(w * 0.34);
    const int top = menuH + h / 30;
    Frame1->setGeometry(w - pw - w / 50, top, pw, h - top - h / 30);
    layoutBoard();
}

WM_REGISTER_GAME("Word Search", WordSearchForm, "images/wm-back.jpg", "sounds/2.wav",
                 "sounds/music.mid", "movies/fireworks.timeline", "movies/wsearchwin.timeline");

}  // namespace wm
