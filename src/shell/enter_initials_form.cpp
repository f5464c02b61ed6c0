#include "shell/enter_initials_form.h"

#include <QKeyEvent>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/rng.h"
#include "core/shared_state.h"
#include "core/strings.h"
#include "platform/screen_metrics.h"
#include "platform/text.h"
#include "shell/style.h"

namespace wm {

namespace {
constexpr int kStepTwips = 20;
constexpr int kRangeTwips = 200;
}  // namespace

QString EnterInitialsForm::Congratulations(int rank, const QString& score) {
    return QString(
               "Congratulations! You have placed number %1 in the high score records with a "
               "score of %2! Type your initials to save your record...")
        .arg(rank)
        .arg(score);
}

EnterInitialsForm::EnterInitialsForm(QWidget* parent) : QDialog(parent) {
    setObjectName("EnterInitialsForm");
    setWindowTitle("New High Score!");
    setModal(true);
    setStyleSheet(
        "QDialog { background: qlineargradient(x1:0, y1:0, x2:0, y2:1,"
        " stop:0 #fff7d6, stop:1 #ffe08a); }");
    SharedState& s = Shared();

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(40, 30, 40, 30);
    layout->setSpacing(18);
    Label1 = new QLabel(this);
    Label1->setObjectName("Label1");
    Label1->setWordWrap(true);
    Label1->setFont(ScreenFont(15, true));
    Label1->setStyleSheet("color: #5a3a00;");
    Label1->setAlignment(Qt::AlignCenter);
    // Word Zap fills in the text itself before the form opens.
    if (LCase(s.CurrentGame) != "word zap")
        Label1->setText(Congratulations(s.PlacedRank, toQ(NumText(s.Score))));
    layout->addWidget(Label1);

    stage_ = new QWidget(this);
    const int box = ScreenFont(34).pointSize() * 2;
    stage_->setMinimumSize(box * 4, box + ScreenMetrics::px(2 * kRangeTwips) * 2 + 20);
    for (int i = 0; i < 3; ++i) {
        auto* e = new QLineEdit(stage_);
        e->setObjectName(QString("ScoreLetter%1").arg(i));
        e->setMaxLength(1);
        e->setAlignment(Qt::AlignCenter);
        e->setFont(ScreenFont(34, true));
        e->setFixedSize(box, box);
        e->setStyleSheet(
            "QLineEdit { background: #ffd94a; color: #1d1d1d; border: 3px solid "
            "#b88a00; border-radius: 12px; }");
        const std::string preset = Mid(s.LastInitials, i + 1, 1);
        e->setText(preset.empty() ? QString("-") : toQ(UCase(preset)));
        e->installEventFilter(this);
        connect(e, &QLineEdit::textEdited, this, [this, i, e](const QString& t) {
            e->setText(t.toUpper());
            if (!t.isEmpty() && i + 1 < ScoreLetter.size()) {
                ScoreLetter[i + 1]->setFocus();
                ScoreLetter[i + 1]->selectAll();
            }
        });
        ScoreLetter.push_back(e);
        offsets_.push_back(0);
    }
    layout->addWidget(stage_, 1);

    auto* ok = MakeButton("OK", this, true);
    ok->setObjectName("Command1");
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &EnterInitialsForm::confirm);
    layout->addWidget(ok, 0, Qt::AlignCenter);

    Timer1.setInterval(120);
    connect(&Timer1, &GameTimer::timeout, this, &EnterInitialsForm::bob);
    Timer1.start();
    ScoreLetter[0]->setFocus();
    ScoreLetter[0]->selectAll();
}

void EnterInitialsForm::confirm() {
    QString joined;
    for (auto* e : ScoreLetter) {
        if (e->text() != "-") joined += e->text();
    }
    Shared().LastInitials = fromQ(joined);
    Timer1.stop();
    accept();
}

bool EnterInitialsForm::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn) {
        if (auto* e = qobject_cast<QLineEdit*>(watched)) {
            QTimer::singleShot(0, e, [e] { e->selectAll(); });
        }
    }
    return QDialog::eventFilter(watched, event);
}

void EnterInitialsForm::bob() {
    // Cosmetic: its own generator, so the game's draws stay as scripted.
    static SystemRng rng;
    for (int i = 0; i < offsets_.size(); ++i) {
        int step = rng.Rnd() < 0.5 ? -kStepTwips : kStepTwips;
        int next = offsets_[i] + step;
        if (next > kRangeTwips || next < -kRangeTwips) next = offsets_[i] - step;
        offsets_[i] = next;
    }
    resizeEvent(nullptr);
}

void EnterInitialsForm::resizeEvent(QResizeEvent* e) {
    if (e) QDialog::resizeEvent(e);
    if (ScoreLetter.isEmpty()) return;
    const int box = ScoreLetter[0]->width();
    const int gap = box / 3;
    const int total = 3 * box + 2 * gap;
    const int left = (stage_->width() - total) / 2;
    const int home = (stage_->height() - box) / 2;
    // The design's steps are tiny on today's screens; they scale with the display.
    const double unit = ScreenMetrics::screenSize().height() / 768.0;
    for (int i = 0; i < ScoreLetter.size(); ++i) {
        int dy = int(ScreenMetrics::px(offsets_[i]) * unit);
        ScoreLetter[i]->move(left + i * (box + gap), home + dy);
    }
}

}  // namespace wm
