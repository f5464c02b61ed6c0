#include "games/study/flash_cards/flash_card_form.h"

#include <QAction>
#include <QKeyEvent>
#include <QPainter>
#include <QSvgRenderer>
#include <QTimer>

#include "core/rng.h"
#include "core/shared_state.h"
#include "platform/dialogs.h"
#include "platform/screen_metrics.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "platform/text.h"
#include "shell/game_registry.h"
#include "shell/quiz_options.h"
#include "shell/style.h"

namespace wm {

namespace {

QLabel* bigLabel(const char* name, QWidget* parent) {
    auto* l = new QLabel(parent);
    l->setObjectName(name);
    l->setAlignment(Qt::AlignCenter);
    l->setWordWrap(true);
    l->setStyleSheet("color: #1b1b1b; background: transparent;");
    return l;
}
// Sets the largest font, up to the designed size, at which the text fits its card: a long
// meaning or a very long word gets smaller letters instead of running off the card.
void fitText(QLabel* l, int designed, bool bold) {
    QFont f = ScreenFont(designed, bold);
    const int inset = l->width() / 30;
    const QRect box = l->contentsRect().adjusted(inset, 4, -inset, -4);
    for (; f.pointSize() > 7; f.setPointSize(f.pointSize() - 1)) {
        const QRect need = QFontMetrics(f).boundingRect(QRect(0, 0, box.width(), 100000),
                                                        Qt::TextWordWrap, l->text());
        if (need.width() <= box.width() && need.height() <= box.height()) break;
    }
    l->setFont(f);
}
// A white arrow head for the card buttons, pointing right or left; drawn, so that the button's
// text stays the card's own words.
// A loudspeaker with two sound waves, white, for the card's speaker button.
QIcon speakerIcon() {
    const int size = 64;
    QPixmap pix(size, size);
    pix.fill(Qt::transparent);
    QPainter p(&pix);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    p.setBrush(Qt::white);
    p.drawPolygon(QPolygonF{QPointF(8, 24), QPointF(20, 24), QPointF(34, 10), QPointF(34, 54),
                            QPointF(20, 40), QPointF(8, 40)});
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(Qt::white, 4.5, Qt::SolidLine, Qt::RoundCap));
    p.drawArc(QRectF(26, 20, 16, 24), -50 * 16, 100 * 16);
    p.drawArc(QRectF(24, 10, 30, 44), -50 * 16, 100 * 16);
    return QIcon(pix);
}

QIcon arrowIcon(bool right) {
    const int size = 64;
    QPixmap pix(size, size);
    pix.fill(Qt::transparent);
    QPainter p(&pix);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    p.setBrush(Qt::white);
    // The back of the head and its point, mirrored for the left arrow.
    const double back = right ? size * 0.22 : size * 0.78, tip = right ? size * 0.82 : size * 0.18;
    p.drawPolygon(QPolygonF{QPointF(back, size * 0.14), QPointF(tip, size / 2.0),
                            QPointF(back, size * 0.86)});
    return QIcon(pix);
}
}  // namespace

FlashCardForm::FlashCardForm(QWidget* parent)
    : QWidget(parent),
      frame_(this, GameMenuNames(), [this] { setup(); }),
      Timer1(frame_.timer("Timer1", 50, [this] {
          // Once opened, the cover goes away for this card.
          if (transparent_ && !MovieBox->isPlaying()) MovieBox->hide();
      })) {
    setWindowTitle("Flash Cards");
    setFocusPolicy(Qt::StrongFocus);
    // Flash cards have Quit only; Escape asks whether to end the program.
    frame_.entry(GameFrame::Entry::Restart)->setVisible(false);
    frame_.entry(GameFrame::Entry::Scores)->setVisible(false);
    frame_.entry(GameFrame::Entry::HowTo)->setVisible(false);
    frame_.setEscapeQuits(false);
    back_ = new QSvgRenderer(findAsset("images/flash-back.svg"), this);
    card_ = new QSvgRenderer(findAsset("images/card.svg"), this);

    TheWord = bigLabel("TheWord", this);
    TheDefinition = bigLabel("TheDefinition", this);
    MovieBox = new Movie(this);
    MovieBox->setObjectName("MovieBox");

    Gimme = MakeButton(flash::kShowWord, this, true);
    Gimme->setObjectName("Gimme");
    connect(Gimme, &QPushButton::clicked, this, &FlashCardForm::gimme);

    Frame1 = new QFrame(this);
    Frame1->setObjectName("Frame1");
    Label2 = MakeButton("Next Card", Frame1);
    Label2->setIcon(arrowIcon(true));
    Label2->setLayoutDirection(Qt::RightToLeft);  // the arrow after the words
    Label2->setObjectName("Label2");
    connect(Label2, &QPushButton::clicked, this, &FlashCardForm::nextCard);
    Frame2 = new QFrame(this);
    Frame2->setObjectName("Frame2");
    backlabel = MakeButton("Previous Card", Frame2);
    backlabel->setIcon(arrowIcon(false));
    backlabel->setObjectName("backlabel");
    connect(backlabel, &QPushButton::clicked, this, &FlashCardForm::previousCard);
    Frame2->hide();

    CardScroll = new QScrollBar(Qt::Horizontal, this);
    CardScroll->setObjectName("CardScroll");
    connect(CardScroll, &QScrollBar::valueChanged, this, &FlashCardForm::scrolled);
    Label1 = new QLabel(this);
    Label1->setObjectName("Label1");
    total_ = new QLabel(this);
    total_->setObjectName("TotalLabel");
    for (auto* l : {Label1, total_}) {
        l->setAlignment(Qt::AlignCenter);
        l->setFont(ScreenFont(14, true));
        l->setStyleSheet("color: white;");
    }

    SayButton = new QToolButton(this);
    SayButton->setObjectName("SayButton");
    SayButton->setIcon(speakerIcon());
    SayButton->setCursor(Qt::PointingHandCursor);
    SayButton->setFocusPolicy(Qt::NoFocus);
    SayButton->setStyleSheet(
        "QToolButton { background: #2f6fc4; border: 2px solid #1f4f94; border-radius: 10px; }"
        "QToolButton:hover { background: #3d82dc; }"
        "QToolButton:disabled { background: #9aa7b6; border-color: #7d8896; }");
    connect(SayButton, &QToolButton::clicked, this, [this] { frame_.sayIt(); });
    frame_.setSayIt([this] { return showingSide(); });
    // The button follows the menu entry: greyed with the same reason.
    QAction* sayEntry = frame_.entry(GameFrame::Entry::SayIt);
    auto follow = [this, sayEntry] {
        SayButton->setEnabled(sayEntry->isEnabled());
        SayButton->setToolTip(sayEntry->toolTip());
    };
    connect(sayEntry, &QAction::changed, this, follow);
    follow();

    resize(ScreenMetrics::screenSize());
    QTimer::singleShot(0, &frame_, [this] { frame_.newGame(); });
}

Spoken FlashCardForm::showingSide() const {
    const SharedState& s = Shared();
    const bool covering = coverState() == Cover::Covering;
    const ListSide side = covering == flash::coversWord(s) ? ListSide::Meaning : ListSide::Word;
    if (s.TheWord.empty()) return {{}, side, toQ(flash::kEndText)};
    return {toQ(side == ListSide::Word ? s.TheWord : s.TheMeaning), side};
}

FlashCardForm::Cover FlashCardForm::coverState() const {
    if (MovieBox->isHidden()) return Cover::Gone;
    return transparent_ ? Cover::Opening : Cover::Covering;
}

void FlashCardForm::setup() {
    SharedState& s = Shared();
    const std::string message = flash::setup(deck_, s);
    total_->setText(toQ(flash::totalText(s)));
    TheWord->clear();
    TheDefinition->clear();
    Label1->clear();
    Gimme->setText(flash::coversWord(s) ? flash::kShowWord : flash::kShowMeaning);
    resizeEvent(nullptr);
    if (!message.empty()) dialogs().message(toQ(message));
    following_ = true;
    CardScroll->setRange(1, std::max<int>(1, s.WordCount));
    following_ = false;
    // Random cards have no place in the list to scroll to.
    CardScroll->setVisible(deck_.mode != 2);
    Timer1.start();
    nextCard();
}

void FlashCardForm::nextCard() {
    flash::nextCard(deck_, Shared(), TheRng());
    showCard();
}

void FlashCardForm::previousCard() {
    flash::previousCard(deck_, Shared());
    showCard();
}

void FlashCardForm::scrolled(int value) {
    if (following_) return;
    flash::scrollTo(deck_, Shared(), value);
    showCard();
}

void FlashCardForm::showCard() {
    const SharedState& s = Shared();
    showView();
    sound().effect("pageturn.wav");
    // A fresh cover over the hidden side, at its first frame.
    MovieBox->load("card.swf");
    transparent_ = false;
    MovieBox->show();
    MovieBox->raise();
    TheWord->setText(toQ(s.TheWord));
    TheDefinition->setText(toQ(s.TheMeaning));
    fitFaces();
    placeSpeaker();
    frame_.refreshSayIt();
    Gimme->setFocus();
}

// The speaker sits in the top corner of the card that is showing.
void FlashCardForm::placeSpeaker() {
    const bool onWord = showingSide().side == ListSide::Word;
    const QRect card = (onWord ? TheWord : TheDefinition)->geometry();
    const int side = std::max(28, height() / 16);
    SayButton->setIconSize(QSize(side * 3 / 4, side * 3 / 4));
    SayButton->setGeometry(card.right() - side + width() / 160, card.top() - height() / 160, side,
                           side);
    SayButton->raise();
}

void FlashCardForm::showView() {
    const SharedState& s = Shared();
    Frame1->setVisible(deck_.view.nextShown);
    Frame2->setVisible(deck_.view.previousShown);
    if (deck_.mode != 2) {
        Label1->setText(toQ(deck_.view.position));
        following_ = true;
        CardScroll->setValue(std::clamp<int>(s.WordIndex, 1, std::max<int>(1, s.WordCount)));
        following_ = false;
    }
}

void FlashCardForm::fitFaces() {
    fitText(TheWord, 34, true);
    fitText(TheDefinition, 20, false);
}

void FlashCardForm::gimme() {
    if (transparent_ || MovieBox->isHidden()) return;
    const flash::Faces faces = flash::reveal(Shared());
    TheWord->setText(toQ(faces.word));
    TheDefinition->setText(toQ(faces.meaning));
    fitFaces();
    transparent_ = true;
    MovieBox->play(false);
    sound().effect("zap.wav");
    placeSpeaker();
    frame_.refreshSayIt();
}

void FlashCardForm::keyPressEvent(QKeyEvent* e) {
    if (e->key() == Qt::Key_Escape) {
        AskEndProgram();
        return;
    }
    QWidget::keyPressEvent(e);
}

void FlashCardForm::paintEvent(QPaintEvent*) {
    QPainter p(this);
    if (back_->isValid())
        back_->render(&p, rect());
    else
        p.fillRect(rect(), QColor("#2c5d8a"));
    for (QLabel* l : {TheWord, TheDefinition}) {
        const QRect r =
            l->geometry().adjusted(-width() / 80, -height() / 80, width() / 80, height() / 80);
        if (card_->isValid())
            card_->render(&p, r);
        else
            p.fillRect(r, Qt::white);
    }
}

void FlashCardForm::resizeEvent(QResizeEvent*) {
    const int w = width(), h = height();
    const int top = frame_.menuHeight() + h / 30;
    total_->setGeometry(w / 10, top, w * 8 / 10, h / 20);
    const int cardW = w * 7 / 10, x = (w - cardW) / 2;
    const int wordH = h / 5, meaningH = h * 3 / 10;
    TheWord->setGeometry(x, top + h / 12, cardW, wordH);
    TheDefinition->setGeometry(x, TheWord->geometry().bottom() + h / 20, cardW, meaningH);
    fitFaces();
    // The cover lies exactly over the covered side.
    QLabel* covered = flash::coversWord(Shared()) ? TheWord : TheDefinition;
    MovieBox->setGeometry(covered->geometry().adjusted(-w / 80, -h / 80, w / 80, h / 80));
    const int rowY = TheDefinition->geometry().bottom() + h / 25;
    const int bh = Gimme->minimumHeight(), bw = w / 5;
    for (QPushButton* b : {Label2, backlabel}) b->setIconSize(QSize(bh / 2, bh / 2));
    Frame2->setGeometry(x, rowY, bw, bh);
    backlabel->setGeometry(0, 0, bw, bh);
    Gimme->setGeometry((w - bw) / 2, rowY, bw, bh);
    Frame1->setGeometry(x + cardW - bw, rowY, bw, bh);
    Label2->setGeometry(0, 0, bw, bh);
    CardScroll->setGeometry(x, rowY + bh + h / 30, cardW, std::max(18, h / 40));
    Label1->setGeometry(x, CardScroll->geometry().bottom() + h / 80, cardW, h / 20);
    placeSpeaker();
}

WM_REGISTER_GAME("Flash Cards", FlashCardForm, "images/flash-back.svg", "images/card.svg",
                 "images/card-cover.svg", "sounds/pageturn.wav", "sounds/zap.wav");

}  // namespace wm
