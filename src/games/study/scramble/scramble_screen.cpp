#include "games/study/scramble/scramble_screen.h"

#include <QFontMetrics>
#include <QGraphicsDropShadowEffect>
#include <algorithm>
#include <QTimer>

#include "core/clock.h"
#include "core/rng.h"
#include "core/shared_state.h"
#include "platform/dialogs.h"
#include "platform/screen_metrics.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "platform/text.h"
#include "shell/fl_form.h"
#include "shell/game_registry.h"

namespace wm {

namespace {
const char* kYellowTile =
    "QLabel { color: #1b1b1b; border: 3px solid #b98900; border-radius: 12px;"
    " background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 #fff27a, stop:1 #ffc400); }";
const char* kBlackTile =
    "QLabel { color: black; border: 3px solid #333; border-radius: 12px; background: black; }";
// The letters are laid out for a 1024 x 768 design and drawn larger than that, so that they
// read well across the room; the widest row (20 small letters) still fits a 16:10 screen.
constexpr double kTileBoost = 1.6;
}  // namespace

namespace {
GameMenuNames menuNames() {
    GameMenuNames menu;
    menu.foreignKey = "scramble";
    return menu;
}
}  // namespace

Scramble::Scramble(QWidget* parent)
    : Backdrop("images/scramble-back.jpg", parent),
      frame_(this, menuNames(), [this] { NewGame(); }),
      Timer1(frame_.timer("Timer1", 1000,
                          [this] {
                              scramble::countSecond(Shared());
                              Label4->setText(QString::number(Shared().ElapsedSeconds));
                          })),
      Timer3(frame_.timer("Timer3", 1000, [this] {
          auto step = scramble::flicker(round_, Shared().Difficulty, TheRng());
          if (step.yellow >= 0) setLetterBlack(step.yellow, false);
          if (step.yellow2 >= 0) setLetterBlack(step.yellow2, false);
          if (step.black1 >= 0) setLetterBlack(step.black1, true);
          if (step.black2 >= 0) setLetterBlack(step.black2, true);
      })) {
    setWindowTitle("Scramble");
    setFocusPolicy(Qt::StrongFocus);
    SharedState& s = Shared();
    frame_.setForeign([this](const QString& c) { FLForm::InsertAt(Guess, c); });
    // Hearing the word and building it from its letters is the exercise.
    frame_.setSayIt(ShownWord);

    heading_ = new QLabel("Unscramble the word!", this);
    heading_->setFont(ScreenFont(24, true));
    heading_->setStyleSheet(
        "color: white; background: rgba(20, 50, 90, 170); border-radius: 14px;"
        " padding: 6px 18px;");
    heading_->setAlignment(Qt::AlignCenter);

    for (int i = 0; i < scramble::kMaxLetters; ++i) {
        auto* l = new QLabel(this);
        l->setObjectName(QString("LetterLabel%1").arg(i));
        l->setAlignment(Qt::AlignCenter);
        l->setStyleSheet(kYellowTile);
        auto* shadow = new QGraphicsDropShadowEffect(l);
        shadow->setBlurRadius(14);
        shadow->setOffset(3, 5);
        shadow->setColor(QColor(0, 0, 0, 120));
        l->setGraphicsEffect(shadow);
        l->hide();
        LetterLabel.push_back(l);
    }

    Label5 = new QLabel("Time:", this);
    Label5->setObjectName("Label5");
    Label4 = new QLabel("0", this);
    Label4->setObjectName("Label4");
    for (auto* l : {Label5, Label4}) {
        l->setFont(ScreenFont(18, true));
        l->setStyleSheet(
            "color: white; background: rgba(20, 50, 90, 170); border-radius: 10px;"
            " padding: 4px 12px;");
    }
    Label3 = new QLabel("Your Guess:", this);
    Label3->setObjectName("Label3");
    Label3->setFont(ScreenFont(18, true));
    Label3->setStyleSheet(
        "color: white; background: rgba(20, 50, 90, 170); border-radius: 10px;"
        " padding: 4px 12px;");
    Guess = new QLineEdit(this);
    Guess->setObjectName("Guess");
    Guess->setFont(ScreenFont(22, true));
    Guess->setMaxLength(40);
    connect(Guess, &QLineEdit::returnPressed, this, &Scramble::submit);

    Command1 = MakeButton("Submit Guess", this, true);
    Command1->setObjectName("Command1");
    Command2 = MakeButton("Give Up", this);
    Command2->setObjectName("Command2");
    Command3 = MakeButton("Hint", this);
    Command3->setObjectName("Command3");
    // The hint stays on a words-only list too, whatever the chooser's warning said.
    connect(Command1, &QPushButton::clicked, this, &Scramble::submit);
    connect(Command2, &QPushButton::clicked, this, &Scramble::giveUp);
    connect(Command3, &QPushButton::clicked, this, &Scramble::hint);

    // The options ask "Scatter?" the other way round: true now means scatter.
    round_.scatter = scramble::invertGameOption(s);
    resize(ScreenMetrics::screenSize());
    QTimer::singleShot(0, &frame_, [this] { frame_.newGame(); });
}

double Scramble::unit() const {
    return kTileBoost * height() / 768.0 / 15.0;
}

scramble::ScreenGeometry Scramble::geometry() const {
    const double u = unit();
    return {int(width() / u), int(height() / u), int(Label3->y() / u)};
}

void Scramble::NewGame() {
    Guess->clear();
    for (auto* l : LetterLabel) l->hide();
    Label4->setText("0");
    auto result = scramble::newGame(Shared(), round_, geometry(), TheRng());
    if (!result.ready) {
        frame_.refuse(toQ(result.message), "Scramble");
        return;
    }
    placeLetters();
    if (result.startFlicker) Timer3.start();
    Timer1.start();
    Guess->setFocus();
}

void Scramble::placeLetters() {
    const double u = unit();
    const auto& size = round_.layout.size;
    QFont f("DejaVu Sans");
    f.setBold(true);
    const QByteArray letters = QByteArray::fromStdString(round_.scrambled);
    // The layout's letter size, points to twips to pixels, a little smaller where the widest
    // letter of the word (an M, a W) would touch its tile's borders.
    const int room = int(size.width * u) - 10;
    for (int px = std::max(8, int(size.font * 20 * u * 0.95)); px >= 8; --px) {
        f.setPixelSize(px);
        const QFontMetrics fm(f);
        if (std::all_of(letters.begin(), letters.end(),
                        [&](char c) { return fm.horizontalAdvance(toQ(std::string(1, c))) <= room; }))
            break;
    }
    for (int i = 0; i < LetterLabel.size(); ++i) {
        QLabel* l = LetterLabel[i];
        if (i >= int(round_.layout.boxes.size()) || i >= letters.size()) {
            l->hide();
            continue;
        }
        l->setFont(f);
        l->setText(toQ(std::string(1, letters[i])));
        const auto& box = round_.layout.boxes[i];
        l->setGeometry(int(box.left * u), int(box.top * u), int(size.width * u),
                       int(size.height * u));
        setLetterBlack(i, false);
        l->show();
    }
}

void Scramble::setLetterBlack(int i, bool black) {
    if (i < 0 || i >= LetterLabel.size()) return;
    LetterLabel[i]->setStyleSheet(black ? kBlackTile : kYellowTile);
}

void Scramble::submit() {
    frame_.stopTimers();
    SharedState& s = Shared();
    auto result =
        scramble::submitGuess(s, round_, fromQ(Guess->text()), TheClock().Now(), TheRng());
    switch (result) {
        case scramble::GuessResult::NotAGuess:
            Timer1.start();
            Guess->setFocus();
            return;
        case scramble::GuessResult::Right:
            sound().effect("applause.wav");
            frame_.wonGame();
            return;
        case scramble::GuessResult::Wrong:
            sound().effect("fall.wav");
            giveUp();
            return;
    }
}

void Scramble::giveUp() {
    frame_.askTryAgain(toQ(scramble::giveUpText(Shared().TheWord)), "Scramble");
}

void Scramble::hint() {
    dialogs().message(toQ(scramble::takeHint(Shared())), "Hint");
    Guess->setFocus();
}

void Scramble::resizeEvent(QResizeEvent*) {
    const int w = width(), h = height();
    const int menuH = frame_.menuHeight();
    // Just under the menu: a scattered letter may stand as high as one letter height.
    const int top = menuH + h / 100;
    heading_->adjustSize();
    heading_->move((w - heading_->width()) / 2, top);
    Label5->adjustSize();
    Label4->setAlignment(Qt::AlignCenter);
    Label4->setFixedWidth(Label4->fontMetrics().horizontalAdvance("00000") + 24);
    Label5->move(w - Label5->width() - Label4->width() - w / 30, top);
    Label4->move(w - Label4->width() - w / 40, top);

    // The guess row sits at three quarters of the height, the buttons below it.
    const int rowY = int(h * 0.76);
    Label3->adjustSize();
    const int guessW = w * 2 / 5;
    const int rowW = Label3->width() + 16 + guessW;
    const int rowX = (w - rowW) / 2;
    Label3->move(rowX, rowY);
    Guess->setGeometry(rowX + Label3->width() + 16, rowY - 4, guessW,
                       std::max(Label3->height() + 8, Guess->sizeHint().height()));
    const int bw = w / 6, bh = Command1->minimumHeight();
    const int by = rowY + Guess->height() + h / 30;
    const int gap = w / 40;
    const int bx = (w - (3 * bw + 2 * gap)) / 2;
    Command1->setGeometry(bx, by, bw, bh);
    Command3->setGeometry(bx + bw + gap, by, bw, bh);
    Command2->setGeometry(bx + 2 * (bw + gap), by, bw, bh);
    if (!round_.scrambled.empty() && !round_.layout.boxes.empty()) placeLetters();
}

WM_REGISTER_GAME("Scramble", Scramble, "images/scramble-back.jpg", "sounds/applause.wav",
                 "sounds/fall.wav");

}  // namespace wm
