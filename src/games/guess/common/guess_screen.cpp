#include "games/guess/common/guess_screen.h"

#include <QKeyEvent>
#include <QVBoxLayout>

#include "core/rng.h"
#include "core/shared_state.h"
#include "platform/dialogs.h"
#include "platform/services.h"
#include "platform/text.h"

namespace wm {

namespace {
const char* kBoxStyle =
    "QLabel { color: #16324f; background: white; border: 3px solid #2f6db5;"
    " border-bottom: 6px solid #2f6db5; border-radius: 8px; }";
const char* kPanelStyle =
    "QGroupBox { color: white; background: rgba(20, 50, 90, 185); border: 2px solid #9fd0f0;"
    " border-radius: 14px; margin-top: 18px; padding: 10px; }"
    " QGroupBox::title { subcontrol-origin: margin; left: 14px; padding: 2px 10px;"
    " background: #2f6db5; border-radius: 8px; }";
constexpr int kRowLength = 30;  // boxes on a row; longer words go on to another row
}  // namespace

GuessScreen::GuessScreen(const QString& picture, GameMenuNames menu, QWidget* parent)
    : Backdrop(picture, parent), frame_(this, std::move(menu), [this] { NewGame(); }) {
    setFocusPolicy(Qt::StrongFocus);
    frame_.setForeign([this](const QString& c) {
        const std::string bytes = fromQ(c);
        if (!bytes.empty()) guessKey(bytes[0]);
    });
    // Finding the word is the game: it is heard once found, its meaning once a hint showed it.
    frame_.setSayIt([this] { return SecretWord(roundOver_, hintTaken_); });

    Frame1 = new QGroupBox("WORD:", this);
    Frame1->setObjectName("Frame1");
    Frame2 = new QGroupBox("Letters Used:", this);
    Frame2->setObjectName("Frame2");
    for (QGroupBox* g : {Frame1, Frame2}) {
        g->setFont(ScreenFont(16, true));
        g->setStyleSheet(kPanelStyle);
    }
    Label2 = new QLabel(Frame2);
    Label2->setObjectName("Label2");
    Label2->setFont(ScreenFont(20, true));
    Label2->setStyleSheet("color: #ffe45c; background: transparent;");
    Label2->setWordWrap(true);
    Label2->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    auto* lay = new QVBoxLayout(Frame2);
    lay->setContentsMargins(12, 22, 12, 12);
    lay->addWidget(Label2);

    Command1 = MakeButton("Hint", this);
    Command1->setObjectName("Command1");
    Command2 = MakeButton("Solve", this, true);
    Command2->setObjectName("Command2");
    for (QPushButton* b : {Command1, Command2}) b->setFocusPolicy(Qt::NoFocus);
    connect(Command1, &QPushButton::clicked, this, &GuessScreen::hint);
    connect(Command2, &QPushButton::clicked, this, &GuessScreen::solveWord);
}

void GuessScreen::NewGame() {
    SharedState& s = Shared();
    roundOver_ = false;
    hintTaken_ = false;
    // No definition to show on a words-only list.
    Command1->setVisible(s.WordsOnly == kFalse);
    Label2->clear();
    for (QLabel* l : LetterLabel) {
        l->hide();
        l->clear();
    }
    guess::startRound(s, round_, TheRng());
    if (s.WordCount <= 0 || round_.boxes.empty()) {
        frame_.refuse("This list has no word to guess.");
        return;
    }
    showBoxes();
    roundStarted();
    setFocus();
}

void GuessScreen::showBoxes() {
    while (LetterLabel.size() < int(round_.boxes.size())) {
        auto* l = new QLabel(Frame1);
        l->setObjectName(QString("LetterLabel%1").arg(LetterLabel.size()));
        l->setAlignment(Qt::AlignCenter);
        l->setStyleSheet(kBoxStyle);
        LetterLabel.push_back(l);
    }
    for (int i = 0; i < LetterLabel.size(); ++i) {
        QLabel* l = LetterLabel[i];
        if (i >= int(round_.boxes.size())) {
            l->hide();
            continue;
        }
        l->setText(toQ(round_.boxes[i].letter));
        l->setVisible(round_.boxes[i].visible);
    }
    placeBoxes();
}

void GuessScreen::guessKey(char key) {
    if (frame_.leaving() || roundOver_ || keysHeld()) return;
    switch (guess::pressKey(round_, key)) {
        case guess::KeyResult::Ignored:
        case guess::KeyResult::Repeat:
            return;
        case guess::KeyResult::Miss:
            Label2->setText(toQ(round_.UsedLetters));
            wrongGuess();
            return;
        case guess::KeyResult::Hit:
            Label2->setText(toQ(round_.UsedLetters));
            showBoxes();
            playHit();
            return;
        case guess::KeyResult::Won:
            Label2->setText(toQ(round_.UsedLetters));
            showBoxes();
            won();
            return;
    }
}

void GuessScreen::wrongGuess() {
    const int misses = guess::addMiss(round_, TheRng());
    if (misses >= guess::missesAllowed(Shared().Difficulty)) roundOver_ = true;
    playMiss(misses);
}

void GuessScreen::won() {
    roundOver_ = true;
    playWin();
}

void GuessScreen::hint() {
    if (frame_.leaving()) return;
    SharedState& s = Shared();
    dialogs().message(toQ(guess::hintText(s, round_)), windowTitle());
    hintTaken_ = true;
    guess::payForHint(s, TheRng());
    setFocus();
}

void GuessScreen::solveWord() {
    // A guess of the whole word waits, like a key, until the picture has played; after the
    // round is decided it is no guess at all.
    if (frame_.leaving() || roundOver_ || keysHeld()) return;
    const auto answer = dialogs().input("What is your guess for this word?", windowTitle());
    std::optional<std::string> text;
    if (answer) text = fromQ(*answer);
    switch (guess::solve(round_, text)) {
        case guess::SolveResult::Nothing:
            break;
        case guess::SolveResult::Won:
            for (std::size_t i = 0; i < round_.boxes.size(); ++i)
                round_.boxes[i].letter = std::string(1, round_.word[i]);
            showBoxes();
            won();
            break;
        case guess::SolveResult::Miss:
            wrongGuess();
            break;
    }
    setFocus();
}

void GuessScreen::keyPressEvent(QKeyEvent* event) {
    const std::string bytes = fromQ(event->text());
    guessKey(bytes.empty() ? 0 : bytes[0]);
}

void GuessScreen::placeBoxes() {
    const int n = int(round_.boxes.size());
    if (n == 0) return;
    const int inner = Frame1->width() - 24;
    const int perRow = std::min(n, kRowLength);
    const int rows = (n + kRowLength - 1) / kRowLength;
    const int gap = std::max(3, width() / 400);
    const int w = std::clamp((inner - gap * (perRow - 1)) / perRow, 8, height() / 11);
    const int rowH = std::max(12, std::min(w * 5 / 4, (Frame1->height() - 46) / rows - 4));
    // Clear of the panel's title, and centred in what is left.
    const int top = std::max(38, (Frame1->height() - rows * (rowH + 4)) / 2 + 10);
    QFont f = ScreenFont(24, true);
    f.setPixelSize(std::max(8, std::min(w, rowH) * 2 / 3));
    for (int i = 0; i < n; ++i) {
        const int row = i / kRowLength, col = i % kRowLength;
        const int inRow = std::min(kRowLength, n - row * kRowLength);
        // Centred: the boxes of a row and the gaps between them.
        const int left = (Frame1->width() - (w * inRow + gap * (inRow - 1))) / 2;
        LetterLabel[i]->setFont(f);
        LetterLabel[i]->setGeometry(left + col * (w + gap), top + row * (rowH + 4), w, rowH);
    }
}

void GuessScreen::resizeEvent(QResizeEvent*) {
    const int w = width(), h = height();
    const QRect pic = pictureRect();
    const int bh = Command1->minimumHeight();
    if (pic.left() >= w / 6) {
        // Beside a narrow picture: letters used on the left, the buttons on the right.
        const int side = std::max(w / 8, pic.left() - w / 20);
        Frame2->setGeometry(w / 40, pic.top(), side, pic.height() * 2 / 3);
        const int bw = std::min(side, w / 5);
        const int bx = w - w / 40 - bw;
        Command1->setGeometry(bx, pic.top() + pic.height() / 4, bw, bh);
        Command2->setGeometry(bx, Command1->y() + bh + h / 30, bw, bh);
    } else {
        // Above a wide picture, in the band under the menu.
        const int top = frame_.menuHeight() + h / 100;
        const int band = std::max(bh + 8, pic.top() - top - h / 100);
        const int bw = w / 7;
        Frame2->setGeometry(pic.left(), top, pic.width() - 2 * bw - w / 20, band);
        Command2->setGeometry(pic.right() - bw, top + (band - bh) / 2, bw, bh);
        Command1->setGeometry(Command2->x() - bw - w / 60, Command2->y(), bw, bh);
    }
    const int top = pic.bottom() + h / 60;
    Frame1->setGeometry(w / 40, top, w - w / 20, std::max(h / 8, h - top - h / 40));
    placeBoxes();
    placePictures();
}

}  // namespace wm
