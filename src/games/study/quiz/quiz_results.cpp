#include "games/study/quiz/quiz_results.h"

#include <QPainter>
#include <QSvgRenderer>
#include <QVBoxLayout>

#include "games/study/quiz/quiz_rules.h"
#include "platform/screen_metrics.h"
#include "platform/services.h"
#include "platform/text.h"
#include "shell/style.h"

namespace wm {

QuizResults::QuizResults(int right, int wrong, QWidget* parent) : QDialog(parent) {
    setObjectName("QuizResults");
    setWindowTitle("Quiz Results");
    setModal(true);
    const QSize screen = ScreenMetrics::screenSize();
    setFixedSize(std::max(520, screen.width() * 9 / 20), std::max(400, screen.height() * 11 / 20));
    paper_ = new QSvgRenderer(findAsset("images/paperback.svg"), this);

    const quiz::Verdict v = quiz::verdict(right, wrong);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(width() / 7, height() / 12, width() / 14, height() / 14);
    layout->setSpacing(height() / 40);
    Label1 = new QLabel(toQ(v.outOf), this);
    Label1->setObjectName("Label1");
    Label1->setFont(ScreenFont(20, true));
    Label1->setWordWrap(true);
    Label1->setAlignment(Qt::AlignCenter);
    Label1->setStyleSheet("color: #1f3f6a;");
    layout->addWidget(Label1);

    // The stamp comes down where the percent will stand.
    const int markH = height() * 7 / 20;
    stamp_ = new Movie(this);
    stamp_->setObjectName("Stamp");
    stamp_->setFixedHeight(markH);
    Label3 = new QLabel(toQ(v.percentText), this);
    Label3->setObjectName("Label3");
    Label3->setFont(ScreenFont(44, true));
    Label3->setAlignment(Qt::AlignCenter);
    Label3->setStyleSheet("color: #c8102e;");
    Label3->setFixedHeight(markH);
    Label3->hide();
    layout->addWidget(stamp_);
    layout->addWidget(Label3);

    Label4 = new QLabel(toQ(v.line), this);
    Label4->setObjectName("Label4");
    Label4->setFont(ScreenFont(17, true));
    Label4->setWordWrap(true);
    Label4->setAlignment(Qt::AlignCenter);
    Label4->setStyleSheet("color: #2a2a2a;");
    layout->addWidget(Label4);
    layout->addStretch(1);

    OK = MakeButton("OK", this, true);
    OK->setObjectName("OK");
    OK->setMinimumWidth(width() / 4);
    layout->addWidget(OK, 0, Qt::AlignCenter);
    connect(OK, &QPushButton::clicked, this, &QDialog::accept);

    stamp_->load("stamp.swf");
    stamp_->play(false);
    // The box looks for the stamp's end, then shows the percent in its place.
    Timer1.setInterval(50);
    connect(&Timer1, &GameTimer::timeout, this, [this] {
        if (stamp_->isPlaying()) return;
        Timer1.stop();
        stamp_->hide();
        Label3->show();
    });
    Timer1.start();
}

void QuizResults::paintEvent(QPaintEvent*) {
    QPainter p(this);
    if (paper_->isValid())
        paper_->render(&p, rect());
    else
        p.fillRect(rect(), QColor("#fffdf4"));
    p.setPen(QPen(QColor("#b9a97a"), 3));
    p.setBrush(Qt::NoBrush);
    p.drawRect(rect().adjusted(1, 1, -2, -2));
}

}  // namespace wm
