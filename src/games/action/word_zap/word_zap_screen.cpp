#include "games/action/word_zap/word_zap_screen.h"

#include <QFont>
#include <QFontMetrics>
#include <QLabel>
#include <QLinearGradient>
#include <QPainter>
#include <QTimer>

#include "core/rng.h"
#include "core/score_table.h"
#include "core/shared_state.h"
#include "core/strings.h"
#include "platform/dialogs.h"
#include "platform/screen_metrics.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "platform/sprite_sheet.h"
#include "platform/text.h"
#include "shell/enter_initials_form.h"
#include "shell/game_registry.h"

namespace wm {

namespace {
const char* kStarsPicture = "images/wordzap-stars.svg";
constexpr int kStarSize = 20;
const double kShelves[] = {0.6, 0.425, 0.3, 0.2};  // under targets 0-1, 2-3, 4-5, 6-7

GameMenuNames menuNames() {
    GameMenuNames menu;
    menu.quit = "Back";
    return menu;
}

QFont boldFont(int px) {
    QFont font("DejaVu Sans");
    font.setBold(true);
    font.setPixelSize(std::max(10, px));
    return font;
}
}  // namespace

Zap::Zap(QWidget* parent)
    : QWidget(parent),
      frame_(this, menuNames(), [this] { SetupGame(); }),
      field_(new PlayField(ScreenMetrics::screenSize(), this)),
      Timer2(frame_.timer("Timer2", 10, [this] { ++gallery_.reaction; })),
      TimeTimer(frame_.timer("TimeTimer", 1000, [this] { timeTick(); })),
      StarTimer(frame_.timer("StarTimer", 1, [this] { starTick(); })) {
    setWindowTitle("Word Zap");
    frame_.hostPlay(field_);
    field_->setCursor(Qt::CrossCursor);
    const SpriteSheet sheet = SpriteSheet::fromSvg(findAsset(kStarsPicture));
    for (int i = 0; i < 5; ++i) {
        QImage image(kStarSize, kStarSize, QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        QPainter p(&image);
        p.setRenderHint(QPainter::SmoothPixmapTransform);
        const QImage f = sheet.frame("star", i);
        if (f.isNull())
            p.fillRect(image.rect().adjusted(3, 3, -3, -3), QColor(255, 230, 80));
        else
            p.drawImage(image.rect(), f);
        star_[i] = image;
    }
    connect(field_, &PlayField::mousePressed, this,
            [this](const QPoint& at, Qt::MouseButton) { clickAt(at); });
    resize(ScreenMetrics::screenSize());
    QTimer::singleShot(0, &frame_, [this] { frame_.newGame(); });
}

void Zap::resizeEvent(QResizeEvent*) {
    field_->setGeometry(frame_.playArea());
}

// The gallery: sky and wall, the wooden posts and ledge, the four shelves, the panel.
QImage Zap::backPicture() const {
    const QSize size = field_->logicalSize();
    const int W = size.width(), H = size.height();
    QImage back(size, QImage::Format_RGB32);
    QPainter p(&back);
    QLinearGradient sky(0, 0, 0, 0.2 * H);
    sky.setColorAt(0, QColor(70, 140, 220));
    sky.setColorAt(1, QColor(170, 210, 245));
    p.fillRect(QRect(0, 0, W, int(0.2 * H)), sky);
    QLinearGradient wall(0, 0.2 * H, 0, 0.8 * H);
    wall.setColorAt(0, QColor(150, 40, 50));
    wall.setColorAt(1, QColor(95, 20, 30));
    p.fillRect(QRect(0, int(0.2 * H), W, int(0.6 * H)), wall);
    p.setPen(QPen(QColor(255, 255, 255, 40), 3));
    for (int x = W / 16; x < W; x += W / 8) p.drawLine(x, int(0.2 * H), x, int(0.8 * H));
    auto wood = [&](const QRect& r, bool vertical) {
        QLinearGradient g(r.topLeft(), vertical ? r.topRight() : r.bottomLeft());
        g.setColorAt(0, QColor(196, 140, 80));
        g.setColorAt(0.5, QColor(160, 105, 55));
        g.setColorAt(1, QColor(110, 70, 35));
        p.fillRect(r, g);
        p.setPen(QPen(QColor(90, 55, 25), 1));
        p.drawRect(r.adjusted(0, 0, -1, -1));
    };
    const int shelfH = std::max(6, H / 70);
    for (double y : kShelves) wood(QRect(int(0.05 * W), int(y * H), int(0.9 * W), shelfH), false);
    wood(QRect(0, int(0.8 * H), W, H - int(0.8 * H)), false);
    wood(QRect(0, 0, int(0.05 * W), int(0.8 * H)), true);
    wood(QRect(W - int(0.05 * W), 0, int(0.05 * W), int(0.8 * H)), true);
    p.setRenderHint(QPainter::Antialiasing);
    p.setBrush(QColor(20, 30, 60));
    p.setPen(QPen(QColor(230, 190, 90), 3));
    p.drawRoundedRect(QRectF(0.05 * W, 0.82 * H, 0.9 * W, 0.16 * H), 12, 12);
    return back;
}

QRect Zap::targetRect(int k) const {
    const QSize size = field_->logicalSize();
    const int W = size.width(), H = size.height();
    const QFont font = boldFont(H / 26);
    const QFontMetrics fm(font);
    const QString text = toQ(gallery_.targets[k].word);
    const int w = std::min(int(0.4 * W), fm.horizontalAdvance(text) + fm.height());
    const int h = fm.height() + fm.height() / 2;
    const int left = int((k % 2 == 0 ? 0.05 : 0.5) * W + (0.4 * W - w) / 2);
    const int bottom = int(kShelves[k / 2] * H);
    return QRect(left, bottom - h, w, h);
}

QRect Zap::readyRect() const {
    const QSize size = field_->logicalSize();
    return QRect(int(0.57 * size.width()), int(0.845 * size.height()), int(0.17 * size.width()),
                 int(0.11 * size.height()));
}

void Zap::drawTarget(int k) {
    if (!drawn_[k].isNull()) field_->restoreBackground(drawn_[k]);
    drawn_[k] = QRect();
    const zap::Target& t = gallery_.targets[k];
    if (!t.visible) return;
    const QRect r = targetRect(k);
    QImage& surface = field_->surface();
    QPainter p(&surface);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(t.black ? QColor(90, 90, 90) : QColor(170, 120, 0), 2));
    p.setBrush(t.black ? QColor(0, 0, 0) : QColor(255, 255, 0));
    p.drawRoundedRect(QRectF(r).adjusted(1, 1, -1, -1), 8, 8);
    p.setFont(boldFont(field_->logicalSize().height() / 26));
    p.setPen(t.black ? Qt::white : Qt::black);
    p.drawText(r, Qt::AlignCenter, toQ(t.word));
    p.end();
    field_->markDirty(r);
    drawn_[k] = r;
}

void Zap::drawPanel() {
    const QSize size = field_->logicalSize();
    const int W = size.width(), H = size.height();
    const QRect def(int(0.07 * W), int(0.835 * H), int(0.48 * W), int(0.13 * H));
    const QRect right(int(0.76 * W), int(0.835 * H), int(0.18 * W), int(0.13 * H));
    const QRect ready = readyRect();
    for (const QRect& r : {def, right, ready}) field_->restoreBackground(r);
    field_->drawText(def, Qt::AlignCenter | Qt::TextWordWrap, defText_, boldFont(H / 40),
                     QColor(255, 245, 200));
    field_->drawText(right.adjusted(0, 0, 0, -right.height() / 2), Qt::AlignCenter, scoreText_,
                     boldFont(H / 34), Qt::white);
    field_->drawText(right.adjusted(0, right.height() / 2, 0, 0), Qt::AlignCenter, timeText_,
                     boldFont(H / 34), QColor(150, 230, 255));
    if (readyShown_) {
        field_->fill(ready, QColor(40, 160, 60));
        field_->drawText(ready, Qt::AlignCenter | Qt::TextWordWrap,
                         "Click here when you are ready!", boldFont(H / 44), Qt::white);
    }
}

void Zap::SetupGame() {
    frame_.stopTimers();
    eraseStars();
    gallery_ = zap::Gallery{};
    drawn_ = {};
    field_->setBackground(backPicture());
    scoreText_ = "Score:  0000";
    timeText_ = toQ(zap::timeCaption(60));
    defText_ = zap::kStartText;
    readyShown_ = true;
    drawPanel();
    field_->flush();
    Timer2.start();
    StarTimer.start();
}

void Zap::startPlay() {
    readyShown_ = false;
    TimeTimer.start();
    sound().effect("ricochet.wav");
    dealRound();
}

void Zap::dealRound() {
    const SharedState& s = Shared();
    const auto dealt = zap::deal(s, gallery_, s.Difficulty, TheRng());
    if (!dealt.ready) {
        frame_.refuse(toQ(dealt.message), "Word Zap");
        return;
    }
    eraseStars();
    for (int k = 0; k < zap::kTargets; ++k) drawTarget(k);
    drawStars();
    defText_ = toQ(zap::definitionText(s, gallery_));
    drawPanel();
    field_->flush();
}

void Zap::clickAt(const QPoint& at) {
    if (frame_.leaving()) return;
    if (readyShown_) {
        if (readyRect().contains(at)) startPlay();
        return;
    }
    const SharedState& s = Shared();
    for (int k = 0; k < zap::kTargets; ++k) {
        if (!gallery_.targets[k].visible || !targetRect(k).contains(at)) continue;
        const QPoint centre = targetRect(k).center();
        const zap::Click click =
            zap::clickTarget(s, gallery_, k, s.Difficulty, centre.x(), centre.y(), TheRng());
        eraseStars();
        if (click == zap::Click::Wrong) {
            sound().effect("shotmiss.wav");
            drawTarget(k);
        } else {
            sound().effect("crumble.wav");
            for (int t = 0; t < zap::kTargets; ++t) drawTarget(t);
        }
        // The caption changes only on a hit; a penalty shows with the next one.
        if (click != zap::Click::Wrong) scoreText_ = toQ(zap::scoreCaption(gallery_.score));
        if (click == zap::Click::Hit) defText_ = toQ(zap::definitionText(s, gallery_));
        drawStars();
        drawPanel();
        field_->flush();
        // The last word of a round deals the next at once, its stars still flying.
        if (click == zap::Click::Dealt) dealRound();
        return;
    }
    // The panel is a frame of its own; only the gallery counts as behind the targets.
    if (at.y() >= int(0.82 * field_->logicalSize().height())) return;
    sound().effect("shotmiss.wav");
    zap::clickBehind(gallery_);
}

void Zap::eraseStars() {
    for (int i = zap::kStars - 1; i >= 0; --i) starSprites_[i].erase(*field_);
}

void Zap::drawStars() {
    const QImage& picture = star_[gallery_.stripFrame - 1];
    // The panel stands in front of the gallery: a star falling behind it is not drawn.
    const int panelTop = int(0.82 * field_->logicalSize().height());
    for (int i = 0; i < zap::kStars; ++i) {
        const zap::Star& s = gallery_.stars[i];
        if (s.alive && s.y + kStarSize / 2 < panelTop)
            starSprites_[i].draw(*field_, {s.x - kStarSize / 2, s.y - kStarSize / 2}, picture);
    }
}

void Zap::starTick() {
    eraseStars();
    const bool end = zap::starTick(gallery_);
    drawStars();
    field_->flush();
    if (end) {
        defText_ = zap::kTimeUp;
        drawPanel();
        field_->flush();
        endGame();
    }
}

void Zap::timeTick() {
    if (!zap::timeTick(gallery_)) {
        timeText_ = toQ(zap::timeCaption(gallery_.timeLeft));
        drawPanel();
        field_->flush();
        return;
    }
    TimeTimer.stop();
    timeText_ = toQ(zap::timeCaption(0));
    eraseStars();
    for (int k = 0; k < zap::kTargets; ++k) {
        if (!gallery_.targets[k].visible) continue;
        const QPoint centre = targetRect(k).center();
        zap::burst(gallery_, centre.x(), centre.y(), TheRng());
        gallery_.targets[k].visible = false;
        drawTarget(k);
    }
    drawStars();
    drawPanel();
    field_->flush();
    sound().effect("airhorn.wav");
}

void Zap::endGame() {
    frame_.stopTimers();
    SharedState& s = Shared();
    s.Score = double(Int(gallery_.score));
    if (s.Score < 0) {
        frame_.askTryAgain(toQ(zap::badScoreText(s.Score)), "Not so great...");
        return;
    }
    handOff();
}

// The hand-off of a won game, as every game has it, except that Word Zap writes the
// congratulations of the initials form itself, with its own rank and score, before the form
// opens (the form leaves its text to this game).
void Zap::handOff() {
    SharedState& s = Shared();
    const std::string score = NumText(s.Score);
    const std::string path = ScoreFilePath(s.AppPath, s.CurrentGame);
    ScoreTable table = ReadScoreTable(path);
    const int rank = FindRank(table, s.Score);
    if (rank > 0) {
        s.PlacedRank = static_cast<short>(rank);
        {
            EnterInitialsForm form(this);
            if (auto* text = form.findChild<QLabel*>("Label1"))
                text->setText(EnterInitialsForm::Congratulations(rank, toQ(score)));
            RunModal(form);
        }
        InsertScore(table, rank, FilterInitials(s.LastInitials), score);
        try {
            WriteScoreTable(path, table);
        } catch (const std::exception& e) {
            dialogs().message(toQ(e.what()), "High Scores");
        }
        ShowHighScores(this);
    }
    const EndTexts texts;
    QString question = rank > 0 ? texts.placed : texts.notPlaced;
    question.replace("{score}", toQ(score));
    if (!dialogs().yesNo(question, texts.title)) {
        frame_.quit();
        return;
    }
    if (rank > 0 && s.Difficulty < s.MaxDifficulty && dialogs().yesNo(texts.raise, texts.title))
        s.Difficulty += 1;
    frame_.newGame();
}

WM_REGISTER_GAME("Word Zap", Zap, "images/wordzap-stars.svg", "sounds/ricochet.wav",
                 "sounds/crumble.wav", "sounds/shotmiss.wav", "sounds/airhorn.wav");

}  // namespace wm
