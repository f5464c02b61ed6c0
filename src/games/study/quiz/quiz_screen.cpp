#include "games/study/quiz/quiz_screen.h"

#include <QAction>
#include <QMouseEvent>
#include <QPainter>
#include <QSvgRenderer>
#include <QTimer>

#include "core/rng.h"
#include "core/shared_state.h"
#include "games/study/quiz/quiz_results.h"
#include "platform/screen_metrics.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "platform/text.h"
#include "shell/game_registry.h"
#include "shell/style.h"

namespace wm {

namespace {

// Answer card colours as colour numbers with blue in the high byte.
constexpr int kWaiting = 12582912;  // dark blue
constexpr int kRed = 255;
constexpr int kBlue = 16711680;

QColor fromColourNumber(int bgr) {
    return QColor(bgr & 0xff, (bgr >> 8) & 0xff, (bgr >> 16) & 0xff);
}

QString cardStyle(int colour, int points) {
    const QColor c = fromColourNumber(colour);
    return QString(
               "QLabel { color: white; font-size: %1pt; font-weight: bold; padding: 4px 14px;"
               " border: 3px solid %2; border-radius: 14px;"
               " background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 %3, stop:1 %4); }")
        .arg(points)
        .arg(c.darker(160).name(), c.lighter(135).name(), c.name());
}

// The largest point size, up to the designed one, at which `text` fits the box when wrapped.
// A long meaning among eight cards gets smaller letters instead of being cut off.
int fittingPoints(const QString& text, QSize box, int designed, bool bold, QSize padding) {
    int points = designed;
    for (; points > 7; --points) {
        QFont f = ScreenFont(1, bold);
        f.setPointSize(points);
        const QRect need = QFontMetrics(f).boundingRect(
            QRect(0, 0, std::max(1, box.width() - padding.width()), 100000), Qt::TextWordWrap,
            text);
        if (need.height() + padding.height() <= box.height()) break;
    }
    return points;
}

QPixmap drawing(const QString& name, QSize size) {
    QSvgRenderer svg(findAsset("images/" + name));
    if (!svg.isValid() || size.isEmpty()) return {};
    QPixmap out(size);
    out.fill(Qt::transparent);
    QPainter p(&out);
    svg.render(&p);
    return out;
}

}  // namespace

Quiz::Quiz(QWidget* parent)
    : QWidget(parent),
      frame_(this, GameMenuNames(), [this] { StartRun(); }),
      Timer1(frame_.timer("Timer1", 300, [this] {
          // The right answer flashes red and blue while the pupil looks at a wrong one.
          flashRed_ = !flashRed_;
          setColour(run_.CorrectChoice - 1, flashRed_ ? kRed : kBlue);
      })) {
    setWindowTitle("Quiz");
    setFocusPolicy(Qt::StrongFocus);
    // The quiz has Restart and Quit only, and no Escape: a stray key must not throw away a run.
    frame_.entry(GameFrame::Entry::Scores)->setVisible(false);
    frame_.entry(GameFrame::Entry::HowTo)->setVisible(false);
    frame_.setEscapeQuits(false);

    Direct = new QLabel(this);
    Direct->setObjectName("Direct");
    Direct->setAlignment(Qt::AlignCenter);
    Direct->setWordWrap(true);
    Direct->setFont(ScreenFont(15, true));
    Direct->setStyleSheet("color: #1f3f6a;");

    Questionlabel = new QLabel(this);
    Questionlabel->setObjectName("Questionlabel");
    Questionlabel->setAlignment(Qt::AlignCenter);
    Questionlabel->setWordWrap(true);
    Questionlabel->setStyleSheet("color: white;");

    for (int i = 0; i < quiz::kMaxChoices; ++i) {
        auto* l = new QLabel(this);
        l->setObjectName(QString("AnswerLabel%1").arg(i));
        l->setWordWrap(true);
        l->setAlignment(Qt::AlignVCenter | Qt::AlignLeft);
        l->setCursor(Qt::PointingHandCursor);
        l->installEventFilter(this);
        l->hide();
        AnswerLabel << l;
        colours_ << kWaiting;
        points_ << 12;
    }

    Feedback = new QLabel(this);
    Feedback->setObjectName("Feedback");
    Feedback->setAlignment(Qt::AlignCenter);
    Feedback->setFont(ScreenFont(30, true));
    auto picture = [this](const char* name) {
        auto* l = new QLabel(this);
        l->setObjectName(name);
        l->setAlignment(Qt::AlignCenter);
        l->hide();
        return l;
    };
    Happy = picture("Happy");
    Happy2 = picture("Happy2");
    Sad = picture("Sad");
    Sad2 = picture("Sad2");
    Image1 = picture("Image1");
    Image2 = picture("Image2");

    Frame2 = new QFrame(this);
    Frame2->setObjectName("Frame2");
    Label1 = MakeButton("Click Here to go to the Next Question", Frame2, true);
    Label1->setObjectName("Label1");
    nextStyle_ = Label1->styleSheet();
    connect(Label1, &QPushButton::clicked, this, &Quiz::nextQuestion);

    scoreBar_ = new QLabel(this);
    scoreBar_->setStyleSheet("background: rgba(31, 63, 106, 210); border-radius: 14px;");
    auto counter = [this](const char* name, const QString& text) {
        auto* l = new QLabel(text, this);
        l->setObjectName(name);
        l->setFont(ScreenFont(16, true));
        l->setStyleSheet("color: white;");
        return l;
    };
    CorrectLabel = counter("CorrectLabel", "0");
    WrongLabel = counter("WrongLabel", "0");
    RemainingLabel = counter("RemainingLabel", "0");
    for (const char* caption : {"Correct:", "Wrong:", "Questions left:"})
        captions_ << counter("", caption);
    back_ = new QSvgRenderer(findAsset("images/quiz-back.svg"), this);
    board_ = new QSvgRenderer(findAsset("images/quiz-board.svg"), this);
    hideFeedback();

    resize(ScreenMetrics::screenSize());
    QTimer::singleShot(0, &frame_, [this] { frame_.newGame(); });
}

void Quiz::StartRun() {
    frame_.stopTimers();
    waiting_ = false;
    hideFeedback();
    quiz::startRun(run_, Shared(), TheRng());
    gap_ = -1;
    for (int i = 0; i < AnswerLabel.size(); ++i) {
        AnswerLabel[i]->setVisible(i < run_.choiceCount);
        setColour(i, kWaiting);
    }
    CorrectLabel->setText("0");
    WrongLabel->setText("0");
    showQuestion();
}

void Quiz::showQuestion() {
    const SharedState& s = Shared();
    RemainingLabel->setText(QString::number(run_.QuestionsLeft));
    Direct->setText(quiz::directions(run_.QuestionKind));
    Direct->show();
    Questionlabel->setText(toQ(quiz::questionText(run_, s)));
    Questionlabel->show();
    for (int i = 0; i < run_.choiceCount; ++i) {
        AnswerLabel[i]->setText(toQ(run_.choices[std::size_t(i)]));
        setColour(i, kWaiting);
    }
    layoutAnswers();
}

void Quiz::setColour(int index, int colour) {
    if (index < 0 || index >= AnswerLabel.size()) return;
    colours_[index] = colour;
    AnswerLabel[index]->setStyleSheet(cardStyle(colour, points_.value(index, 12)));
}

void Quiz::pick(int index) {
    if (waiting_ || index < 0 || index >= run_.choiceCount) return;
    waiting_ = true;
    const bool right = quiz::answer(run_, index + 1);
    CorrectLabel->setText(QString::number(run_.QuizRight));
    WrongLabel->setText(QString::number(run_.QuizWrong));
    setColour(run_.CorrectChoice - 1, kRed);
    showFeedback(right);
    if (right) {
        sound().effect("dingling.wav");
    } else {
        sound().effect("gbell.wav");
        flashRed_ = true;
        Timer1.start();
    }
}

void Quiz::showFeedback(bool right) {
    Feedback->setText(right ? "Correct!" : "Wrong");
    Feedback->setStyleSheet(right ? "color: #1d8a3a;" : "color: #c62828;");
    Feedback->show();
    Happy->setVisible(right);
    Happy2->setVisible(right);
    Image1->setVisible(right);
    Sad->setVisible(!right);
    Sad2->setVisible(!right);
    Image2->setVisible(!right);
    Frame2->show();
    Frame2->raise();
    Label1->setFocus();
}

void Quiz::hideFeedback() {
    for (QWidget* w : {static_cast<QWidget*>(Feedback), static_cast<QWidget*>(Happy),
                       static_cast<QWidget*>(Happy2), static_cast<QWidget*>(Sad),
                       static_cast<QWidget*>(Sad2), static_cast<QWidget*>(Image1),
                       static_cast<QWidget*>(Image2), static_cast<QWidget*>(Frame2)})
        w->hide();
}

void Quiz::nextQuestion() {
    if (!waiting_) return;
    frame_.stopTimers();
    if (quiz::next(run_, Shared(), TheRng())) {
        waiting_ = false;
        hideFeedback();
        showQuestion();
        return;
    }
    RemainingLabel->setText(QString::number(run_.QuestionsLeft));
    finish();
}

void Quiz::finish() {
    for (auto* l : AnswerLabel) l->hide();
    Questionlabel->hide();
    Direct->hide();
    hideFeedback();
    update();
    const int round = frame_.round();
    QuizResults results(run_.QuizRight, run_.QuizWrong, this);
    RunModal(results);
    // A Restart from inside the box's wait starts a new run instead.
    if (frame_.round() == round) frame_.quit();
}

bool Quiz::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress) {
        const int i = AnswerLabel.indexOf(static_cast<QLabel*>(watched));
        if (i >= 0) {
            pick(i);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void Quiz::paintEvent(QPaintEvent*) {
    QPainter p(this);
    QSvgRenderer& back = *back_;
    QSvgRenderer& board = *board_;
    if (back.isValid())
        back.render(&p, rect());
    else
        p.fillRect(rect(), QColor("#fdf3d6"));
    if (Questionlabel->isVisible()) {
        const QRect r = Questionlabel->geometry().adjusted(-width() / 60, -height() / 60,
                                                           width() / 60, height() / 60);
        if (board.isValid())
            board.render(&p, r);
        else
            p.fillRect(r, QColor("#1d4a32"));
    }
}

void Quiz::resizeEvent(QResizeEvent*) {
    const int w = width(), h = height();
    const int top = frame_.menuHeight() + h / 80;
    Direct->setGeometry(w / 20, top, w * 9 / 10, h / 18);
    // The board: centred with equal side margins, big enough for a long meaning.
    Questionlabel->setGeometry(w / 8, top + h / 18 + h / 40, w * 3 / 4, h / 6);
    const int side = std::min(w / 7, h / 5);
    const int rightX = w * 67 / 100, rightW = w - rightX - w / 40;
    const int fy = Questionlabel->geometry().bottom() + h / 25;
    Feedback->setGeometry(rightX, fy, rightW, h / 12);
    Happy->setGeometry(rightX, fy + h / 12, rightW / 2, side);
    Happy2->setGeometry(rightX + rightW / 2, fy + h / 12, rightW / 2, side);
    Sad->setGeometry(Happy->geometry());
    Sad2->setGeometry(Happy2->geometry());
    const int iconY = fy + h / 12 + side + h / 60;
    Image1->setGeometry(rightX, iconY, rightW, side / 2);
    Image2->setGeometry(Image1->geometry());
    Happy->setPixmap(drawing("quiz-happy.svg", {side, side}));
    Happy2->setPixmap(drawing("quiz-happy2.svg", {side, side}));
    Sad->setPixmap(drawing("quiz-sad.svg", {side, side}));
    Sad2->setPixmap(drawing("quiz-sad2.svg", {side, side}));
    Image1->setPixmap(drawing("quiz-right.svg", {side / 2, side / 2}));
    Image2->setPixmap(drawing("quiz-wrong.svg", {side / 2, side / 2}));
    Frame2->setGeometry(rightX, iconY + side / 2 + h / 60, rightW, h / 8);
    Label1->setGeometry(0, 0, rightW, h / 8);
    // The whole invitation on one line, smaller if the column is narrow.
    QFont nextFont = ScreenFont(13, true);
    while (nextFont.pointSize() > 7 &&
           QFontMetrics(nextFont).horizontalAdvance(Label1->text()) + 64 > rightW)
        nextFont.setPointSize(nextFont.pointSize() - 1);
    // Sized through the style sheet, which would otherwise override the font.
    Label1->setStyleSheet(nextStyle_ +
                          QString("QPushButton { font-size: %1pt; }").arg(nextFont.pointSize()));

    // The counters along the foot of the screen.
    const int barH = h / 16;
    const int barY = h - barH - h / 50;
    scoreBar_->setGeometry(w / 20, barY, w * 9 / 10, barH);
    const int third = w * 9 / 10 / 3;
    const int valueW = CorrectLabel->fontMetrics().horizontalAdvance("0000");
    for (int column = 0; column < 3; ++column) {
        QLabel* caption = captions_[column];
        QLabel* value = QVector<QLabel*>{CorrectLabel, WrongLabel, RemainingLabel}[column];
        caption->adjustSize();
        const int x = w / 20 + column * third + (third - caption->width() - valueW - 10) / 2;
        caption->setGeometry(x, barY, caption->width(), barH);
        value->setGeometry(x + caption->width() + 10, barY, valueW, barH);
    }
    gap_ = -1;
    layoutAnswers();
}

void Quiz::layoutAnswers() {
    const int w = width(), h = height();
    const int n = std::max(1, run_.choiceCount);
    const int first = Questionlabel->geometry().bottom() + h / 25;
    const int floor = scoreBar_->geometry().top() - h / 60;
    // Worked out from Difficulty once, as the screen is laid out, and not adjusted afterwards.
    if (gap_ < 0) gap_ = n > 1 ? std::clamp((floor - first) / (n * 8), 4, h / 30) : 0;
    // A few choices make cards of a comfortable size, not stretched down to the counters.
    const int cardH = std::clamp((floor - first - gap_ * (n - 1)) / n, 24, h / 7);
    const int x = w / 20, cardW = w * 67 / 100 - x - w / 40;
    const int designed = ScreenFont(quiz::answerPointSize(run_.QuestionKind)).pointSize();
    for (int i = 0; i < AnswerLabel.size(); ++i) {
        QLabel* l = AnswerLabel[i];
        l->setGeometry(x, first + i * (cardH + gap_), cardW, cardH);
        // Room for the card's padding and border, and a line's leading to spare.
        points_[i] = fittingPoints(l->text(), l->size(), designed, true, QSize(40, 22));
        setColour(i, colours_[i]);
    }
    const QLabel* q = Questionlabel;
    QFont qf = ScreenFont(1, true);
    qf.setPointSize(fittingPoints(q->text(), q->size(),
                                  ScreenFont(run_.QuestionKind == 2 ? 18 : 30).pointSize(), true,
                                  QSize(12, 12)));
    Questionlabel->setFont(qf);
    update();
}

WM_REGISTER_GAME("Quiz", Quiz, "images/quiz-back.svg", "images/quiz-board.svg",
                 "images/quiz-happy.svg", "images/quiz-happy2.svg", "images/quiz-sad.svg",
                 "images/quiz-sad2.svg", "images/quiz-right.svg", "images/quiz-wrong.svg",
                 "images/paperback.svg", "images/stamp.svg", "sounds/dingling.wav",
                 "sounds/gbell.wav");

}  // namespace wm
