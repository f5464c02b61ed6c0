#include "games/show/tictactoe/tictactoe_screen.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QTimer>
#include <QVBoxLayout>
#include <cmath>
#include <random>

#include "core/rng.h"
#include "games/show/svg_picture.h"
#include "core/shared_state.h"
#include "platform/dialogs.h"
#include "platform/screen_metrics.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "platform/text.h"
#include "shell/game_registry.h"
#include "shell/style.h"

namespace wm {

using namespace tictactoe;

namespace {
// The board's design size; it is scaled once to the screen.
constexpr int kW = 1024, kH = 768, kCell = 150;
constexpr int kGridLeft = (kW - 3 * kCell) / 2, kGridTop = 190;
const QColor kXColour(230, 60, 60), kOColour(40, 120, 235);

// The sparks are decoration: their own generator leaves the game's draws untouched.
std::minstd_rand& sparkDice() {
    static std::minstd_rand dice(7);
    return dice;
}
double sparkRnd() {
    return std::uniform_real_distribution<double>(0, 1)(sparkDice());
}

// A square's mark, rendered once from its drawing; with the drawing missing the square stays
// empty, and the game plays on.
QImage markSprite(bool x) {
    QImage img(kCell, kCell, QImage::Format_ARGB32_Premultiplied);
    img.fill(Qt::transparent);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    show::PaintSvg(p, x ? "images/ttt-x.svg" : "images/ttt-o.svg", QRectF(img.rect()));
    return img;
}
}  // namespace

TicTacToe::TicTacToe(QWidget* parent)
    : QWidget(parent),
      frame_(this, GameMenuNames{}, [this] { SetupGame(); }),
      Timer1(frame_.timer("Timer1", 1000,
                          [this] {
                              if (++PauseTicks < pauseMark_) return;
                              Timer1.stop();
                              if (auto then = std::exchange(afterPause_, {})) then();
                          })),
      Timer2(frame_.timer("Timer2", 1000,
                          [this] {
                              if (!Label5->isVisible() || !Frame1->isVisible()) return;
                              --QuestionSeconds;
                              Label5->setText(QString("Time Remaining: %1").arg(QuestionSeconds));
                              if (QuestionSeconds > 0) return;
                              Timer2.stop();
                              for (auto* o : Option1) o->setText({});
                              Frame1->hide();
                              PlayerMiss();
                          })),
      Timer3(frame_.timer("Timer3", 10,
                          [this] {
                              static const QColor seven[] = {
                                  Qt::red,     Qt::yellow, Qt::green,          Qt::cyan,
                                  Qt::magenta, Qt::white,  QColor(255, 150, 0)};
                              lineColour_ = seven[int(sparkRnd() * 7) % 7];
                              redrawOverlay();
                          })),
      StarTimer(frame_.timer("StarTimer", 1, [this] {
          bool any = false;
          for (auto& s : sparks_) {
              if (!s.alive) continue;
              s.x += s.dx * 0.5;
              s.y += s.dy * 0.5;
              s.dy += 0.6;
              s.alive = ++s.age < 45;
              any = true;
          }
          if (any) redrawOverlay();
      })),
      UfoTimer(frame_.timer("UfoTimer", 30, [this] {
          for (auto& u : saucers_) u.phase += u.speed;
          redrawOverlay();
      })) {
    // The winning line keeps changing colour, the sparks fall and the saucers wander on
    // while the end boxes stand.
    for (const char* name : {"Timer3", "StarTimer", "UfoTimer"}) frame_.runOnThroughEnd(name);
    setWindowTitle("Tic-Tac-Toe");
    sprites_ = {markSprite(true), markSprite(false)};
    for (int age = 0; age < 45; ++age) {
        QImage spark(12, 12, QImage::Format_ARGB32_Premultiplied);
        spark.fill(Qt::transparent);
        QPainter p(&spark);
        p.setRenderHint(QPainter::Antialiasing);
        p.setPen(Qt::NoPen);
        p.setBrush(QColor::fromHsv((age * 17) % 360, 200, 255));
        p.drawEllipse(QPointF(6, 6), 5, 5);
        sparkFrames_.push_back(spark);
    }
    // Two saucers wander the sky either side of the board, clear of the board and the captions.
    saucerPicture_ = QImage(120, 66, QImage::Format_ARGB32_Premultiplied);
    saucerPicture_.fill(Qt::transparent);
    {
        QPainter p(&saucerPicture_);
        p.setRenderHint(QPainter::Antialiasing);
        show::PaintSvg(p, "images/saucer.svg", QRectF(saucerPicture_.rect()));
    }
    const int lane = (kGridLeft - 24) / 2;  // the middle of the sky beside the board
    saucers_[0] = {double(lane), 420.0, 0.035, 0.0, {}};
    saucers_[1] = {double(kW - lane), 400.0, -0.027, 2.0, {}};
    // Under the panels; clicks go to the game, which maps them through the field.
    field_ = new PlayField(QSize(kW, kH), this);
    field_->setObjectName("Field");
    field_->setAttribute(Qt::WA_TransparentForMouseEvents);
    field_->lower();  // under the menu and the panels
    const QString panel =
        "QFrame { background: rgba(255, 250, 235, 245); border: 4px solid #2f5d8a;"
        " border-radius: 18px; } QLabel, QRadioButton { border: none; background: transparent;"
        " color: #1b2a3a; }";
    Frame2 = new QFrame(this);
    Frame2->setObjectName("Frame2");
    Frame2->setStyleSheet(panel);
    auto* sideLayout = new QVBoxLayout(Frame2);
    auto* ask = new QLabel("Choose your side!", Frame2);
    ask->setFont(ScreenFont(20, true));
    ask->setAlignment(Qt::AlignCenter);
    sideLayout->addWidget(ask);
    auto* row = new QHBoxLayout;
    Label3 = MakeButton("X", Frame2, true);
    Label3->setObjectName("Label3");
    Label4 = MakeButton("O", Frame2, true);
    Label4->setObjectName("Label4");
    for (auto* b : {Label3, Label4}) {
        b->setFont(ScreenFont(36, true));
        b->setMinimumSize(120, 100);
        row->addWidget(b);
    }
    Label3->setStyleSheet(QString("color: %1;").arg(kXColour.name()));
    Label4->setStyleSheet(QString("color: %1;").arg(kOColour.name()));
    sideLayout->addLayout(row);
    connect(Label3, &QPushButton::clicked, this, [this] { chooseSide(true); });
    connect(Label4, &QPushButton::clicked, this, [this] { chooseSide(false); });

    Frame1 = new QFrame(this);
    Frame1->setObjectName("Frame1");
    Frame1->setStyleSheet(panel);
    auto* q = new QVBoxLayout(Frame1);
    q->setContentsMargins(24, 18, 24, 18);
    Label1 = new QLabel(Frame1);
    Label1->setObjectName("Label1");
    Label1->setWordWrap(true);
    Label1->setFont(ScreenFont(15, true));
    q->addWidget(Label1);
    for (int i = 0; i < 6; ++i) {
        auto* o = new QRadioButton(Frame1);
        o->setObjectName(QString("Option1_%1").arg(i));
        o->setFont(ScreenFont(15));
        connect(o, &QRadioButton::clicked, this, [this, i] {
            ChosenOption = i;
            Command1->show();
        });
        q->addWidget(o);
        Option1.push_back(o);
    }
    Label5 = new QLabel(Frame1);
    Label5->setObjectName("Label5");
    Label5->setFont(ScreenFont(14, true));
    q->addWidget(Label5);
    Command1 = MakeButton("Try for the square", Frame1, true);
    Command1->setObjectName("Command1");
    q->addWidget(Command1);
    connect(Command1, &QPushButton::clicked, this, &TicTacToe::answer);

    Label2 = new QLabel(this);
    Label2->setObjectName("Label2");
    Label2->setAlignment(Qt::AlignCenter);
    Label2->setFont(ScreenFont(20, true));
    Label2->setStyleSheet(
        "QLabel { color: white; background: rgba(20, 50, 90, 190); border-radius: 12px;"
        " padding: 6px 18px; }");
    resize(ScreenMetrics::screenSize());
    QTimer::singleShot(0, &frame_, [this] { frame_.newGame(); });
}

void TicTacToe::SetupGame() {
    TheRng().Randomize();
    board_ = Board{};
    verdict_ = Verdict{};
    move_ = {};
    Timer2.stop();
    Timer3.stop();
    afterPause_ = {};
    for (auto& s : sparks_) s = Spark{};
    lineUnder_ = {};
    StarTimer.start();
    UfoTimer.start();
    Frame2->show();
    Frame1->hide();
    Label2->setText({});
    Label2->hide();
    PlayerTurn = playerMovesFirst(Shared().Difficulty);
    drawBoard();
    resizeEvent(nullptr);
    update();
}

void TicTacToe::chooseSide(bool x) {
    playerIsX_ = x;
    Frame2->hide();
    Label2->setText(kClickSquare);
    Label2->show();
    resizeEvent(nullptr);
    if (!PlayerTurn) ComputerMove();
}

double TicTacToe::scale() const {
    return std::min(width() / double(kW), (height() - frame_.menuHeight()) / double(kH));
}

QPointF TicTacToe::offset() const {
    const int menu = frame_.menuHeight();
    return {(width() - kW * scale()) / 2, menu + (height() - menu - kH * scale()) / 2};
}

QRect TicTacToe::logicalSquare(int row, int col) const {
    return {kGridLeft + (col - 1) * kCell, kGridTop + (row - 1) * kCell, kCell, kCell};
}

QPoint TicTacToe::squareCentre(int row, int col) const {
    return field_->pos() +
           field_->toWidget(QRect(logicalSquare(row, col).center(), QSize(1, 1))).center();
}

void TicTacToe::drawBoard() {
    QImage board(kW, kH, QImage::Format_RGB32);
    QPainter p(&board);
    QLinearGradient sky(0, 0, 0, kH);
    sky.setColorAt(0, QColor(120, 200, 255));
    sky.setColorAt(1, QColor(200, 240, 200));
    p.fillRect(board.rect(), sky);
    p.setRenderHint(QPainter::Antialiasing);
    // A chalk-green play board with rounded corners, then the grid lines.
    const QRectF boardRect(kGridLeft - 24, kGridTop - 24, 3 * kCell + 48, 3 * kCell + 48);
    p.setPen(QPen(QColor(120, 80, 40), 10));
    p.setBrush(QColor(40, 110, 70));
    p.drawRoundedRect(boardRect, 24, 24);
    p.setPen(QPen(QColor(250, 250, 240), 10, Qt::SolidLine, Qt::RoundCap));
    for (int i = 1; i < 3; ++i) {
        p.drawLine(kGridLeft + i * kCell, kGridTop + 10, kGridLeft + i * kCell,
                   kGridTop + 3 * kCell - 10);
        p.drawLine(kGridLeft + 10, kGridTop + i * kCell, kGridLeft + 3 * kCell - 10,
                   kGridTop + i * kCell);
    }
    p.end();
    field_->setBackground(board);
    field_->markDirty(field_->surface().rect());
    field_->flush();
}

void TicTacToe::drawMark(int row, int col, int owner) {
    const bool x = (owner == Player) == playerIsX_;
    // A block copy of the mark's sprite through its mask onto the board, under the sprites.
    liftSprites();
    const QRect square = logicalSquare(row, col);
    field_->drawTransparent(square.topLeft(), sprites_[x ? 0 : 1]);
    field_->markDirty(square);
    redrawOverlay();
}

void TicTacToe::liftSprites() {
    for (auto it = sparks_.rbegin(); it != sparks_.rend(); ++it) it->sprite.erase(*field_);
    for (auto it = saucers_.rbegin(); it != saucers_.rend(); ++it) it->sprite.erase(*field_);
}

void TicTacToe::redrawOverlay() {
    PlayField& f = *field_;
    liftSprites();
    if (!lineUnder_.isNull()) {
        f.restore(lineUnder_);
        lineUnder_ = {};
    }
    if (verdict_.winner != Empty) {
        // From 0.2 to 0.8 across the end squares, through their middles.
        const QPointF a = logicalSquare(verdict_.from.row, verdict_.from.col).center();
        const QPointF b = logicalSquare(verdict_.to.row, verdict_.to.col).center();
        const QPointF d = b - a;
        const QPointF from = a - d * 0.3 / 2, to = b + d * 0.3 / 2;
        const QRect around =
            QRectF(from, to).normalized().toAlignedRect().adjusted(-10, -10, 10, 10);
        lineUnder_ = f.save(around);
        QPainter p(&f.surface());
        p.setRenderHint(QPainter::Antialiasing);
        p.setPen(QPen(lineColour_, 16, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(from, to);
        f.markDirty(around);
    }
    const QRect sky = f.surface().rect();
    for (auto& u : saucers_) {
        // A slow loop: side to side twice for each climb and fall.
        const QPointF centre(u.x + 55 * std::sin(2 * u.phase), u.y + 200 * std::sin(u.phase));
        const QPoint at = (centre - QPointF(saucerPicture_.width(), saucerPicture_.height()) / 2)
                              .toPoint();
        if (sky.intersects(QRect(at, saucerPicture_.size()))) u.sprite.draw(f, at, saucerPicture_);
    }
    const QRect inside = f.surface().rect().adjusted(0, 0, -12, -12);
    for (auto& s : sparks_) {
        const QPoint at = QPointF(s.x - 6, s.y - 6).toPoint();
        if (s.alive && inside.contains(at))
            s.sprite.draw(f, at, sparkFrames_[size_t(std::min(s.age, 44))]);
    }
    f.flush();
}

void TicTacToe::paintEvent(QPaintEvent*) {
    // Round the board: the same sky it is drawn on, from the menu down.
    QPainter p(this);
    QLinearGradient sky(0, frame_.menuHeight(), 0, height());
    sky.setColorAt(0, QColor(120, 200, 255));
    sky.setColorAt(1, QColor(200, 240, 200));
    p.fillRect(rect(), sky);
}

void TicTacToe::burst(int row, int col, int count) {
    const QPointF c = logicalSquare(row, col).center();
    for (int group = 0; group < count / 10; ++group) {
        const int base = (nextBurst_++ % 16) * 10;
        for (int i = base; i < base + 10; ++i) {
            Spark& s = sparks_[i];
            s.x = c.x();
            s.y = c.y();
            s.dx = double(int(sparkRnd() * 10 + 1) + 5);
            s.dy = double(10 - int(sparkRnd() * 20 + 1));
            s.age = 0;
            s.alive = true;
            if (i % 2) sparks_[i].dx = -sparks_[i].dx;  // a burst both ways, as fireworks do
        }
    }
}

void TicTacToe::mousePressEvent(QMouseEvent* e) {
    if (!PlayerTurn || Timer1.isActive() || Frame1->isVisible() || Frame2->isVisible()) return;
    const QPointF at = field_->toLogical((e->position() - QPointF(field_->pos())).toPoint());
    for (int r = 1; r <= 3; ++r)
        for (int c = 1; c <= 3; ++c) {
            if (!logicalSquare(r, c).contains(at.toPoint())) continue;
            if (board_.taken(r, c)) return;
            move_ = {r, c};
            AskQuestion();
            return;
        }
}

void TicTacToe::AskQuestion() {
    SharedState& s = Shared();
    question_ = askQuestion(s, s.Difficulty, TheRng());
    Label1->setText(toQ(questionText(s.TheMeaning)));
    for (auto* o : Option1) {
        o->hide();
        o->setText({});
        o->setAutoExclusive(false);
        o->setChecked(false);
        o->setAutoExclusive(true);
    }
    for (int i = 0; i < int(question_.options.size()); ++i) {
        Option1[i]->setText(toQ(s.Words[question_.options[i]]));
        Option1[i]->show();
    }
    ChosenOption = -1;
    Command1->hide();
    QuestionSeconds = questionSeconds(s.Difficulty);
    Label5->setVisible(QuestionSeconds > 0);
    Label5->setText(QString("Time Remaining: %1").arg(QuestionSeconds));
    Frame1->show();
    resizeEvent(nullptr);
    Frame1->raise();
    if (QuestionSeconds > 0) Timer2.start();
}

void TicTacToe::answer() {
    Timer1.stop();
    Timer2.stop();
    for (auto* o : Option1) o->setText({});
    Frame1->hide();
    if (ChosenOption == question_.right)
        PlayerHit();
    else
        PlayerMiss();
}

void TicTacToe::PlayerHit() {
    sound().effect("laser.wav");
    burst(move_.row, move_.col, 30);
    PlayerTurn = false;
    board_.set(move_.row, move_.col, Player);
    drawMark(move_.row, move_.col, Player);
    pause(1, [this] { CheckBoard([this] { ComputerMove(); }); });
}

void TicTacToe::PlayerMiss() {
    dialogs().message(toQ(missText(Shared().TheWord)));
    sound().effect("2.wav");
    burst(move_.row, move_.col, 10);
    PlayerTurn = false;
    ComputerMove();
}

void TicTacToe::ComputerMove() {
    PlayerTurn = false;
    Label2->setText(kComputerTries);
    pause(2, [this] { computerTries(); });
}

void TicTacToe::computerTries() {
    const int level = Shared().Difficulty;
    move_ = computerChoice(board_, level, TheRng());
    if (!computerHits(level, TheRng())) {
        sound().effect("2.wav");
        burst(move_.row, move_.col, 10);
        Label2->setText(kComputerMisses);
    } else {
        sound().effect("laser.wav");
        burst(move_.row, move_.col, 30);
        Label2->setText(kComputerWins);
        board_.set(move_.row, move_.col, Computer);
        drawMark(move_.row, move_.col, Computer);
    }
    pause(1, [this] {
        CheckBoard([this] {
            PlayerTurn = true;
            Label2->setText(kClickSquare);
        });
    });
}

bool TicTacToe::CheckBoard(std::function<void()> goOn) {
    verdict_ = checkBoard(board_);
    if (verdict_.winner != Empty) {
        Timer3.start();
        const bool player = verdict_.winner == Player;
        Label2->setText(player ? kYouWin : kComputerWinsGame);
        if (player) sound().effect("winner2.wav");
        redrawOverlay();
        pause(1, [this, player] {
            PlayerTurn = true;
            if (player) {
                SharedState& s = Shared();
                s.Score = winScore(s.Score, s.Difficulty, TheRng());
                frame_.wonGame();
            } else {
                sound().effect("loser3.wav");
                frame_.askTryAgain(kLost, "Tic-Tac-Toe");
            }
        });
        return false;
    }
    if (verdict_.tie) {
        PlayerTurn = true;
        sound().effect("ooh.wav");
        frame_.askTryAgain(kTie, "Tic-Tac-Toe");
        return false;
    }
    goOn();
    return true;
}

void TicTacToe::pause(int ticks, std::function<void()> then) {
    // The dramatic pause: Timer1 counts, and clicks wait while it runs.
    PauseTicks = 0;
    pauseMark_ = ticks;
    afterPause_ = frame_.later(std::move(then));
    Timer1.start();
}

void TicTacToe::resizeEvent(QResizeEvent*) {
    const double s = scale();
    const QPointF o = offset();
    // Below the menu, exactly the field's shape, so that it has no bars of its own.
    const int menu = frame_.menuHeight();
    const QSize shown = QSize(kW, kH).scaled(QSize(width(), height() - menu), Qt::KeepAspectRatio);
    field_->setGeometry(
        QRect(QPoint((width() - shown.width()) / 2, menu + (height() - menu - shown.height()) / 2),
              shown));
    Label2->adjustSize();
    Label2->move((width() - Label2->width()) / 2,
                 std::max(frame_.menuHeight() + 8, int(o.y() + 70 * s)));
    Frame2->adjustSize();
    Frame2->move((width() - Frame2->width()) / 2, (height() - Frame2->height()) / 2);
    Frame1->setFixedWidth(int(std::min(width() * 0.6, 640 * std::max(1.0, s))));
    Frame1->adjustSize();
    Frame1->move((width() - Frame1->width()) / 2,
                 std::max(frame_.menuHeight() + 4, (height() - Frame1->height()) / 2));
}

WM_REGISTER_GAME("Tic-Tac-Toe", TicTacToe, "sounds/ooh.wav", "sounds/2.wav", "sounds/laser.wav",
                 "sounds/loser3.wav", "sounds/winner2.wav");

}  // namespace wm
