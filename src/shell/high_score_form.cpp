#include "shell/high_score_form.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "core/score_table.h"
#include "core/shared_state.h"
#include "platform/text.h"
#include "shell/style.h"

namespace wm {

QString HighScoreForm::RankLine(int rank, const QString& initials, const QString& score) {
    QString line = "#" + QString::number(rank);
    line = line.leftJustified(12, ' ');
    line += initials.trimmed().isEmpty() ? QString("---") : initials.trimmed();
    line = line.leftJustified(26, ' ');
    line += score.trimmed().isEmpty() ? QString("-------") : score.trimmed();
    return line;
}

HighScoreForm::HighScoreForm(QWidget* parent) : QDialog(parent) {
    setObjectName("HighScoreForm");
    setWindowTitle("High Scores");
    setModal(true);
    // The close box is refused: OK is the way out.
    setWindowFlags(windowFlags() & ~Qt::WindowCloseButtonHint & ~Qt::WindowContextHelpButtonHint);
    setStyleSheet("QDialog { background: #fdfbf3; }");

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(36, 24, 36, 24);
    heading_ = MakeHeading("", this, 22);
    heading_->setAlignment(Qt::AlignCenter);
    layout->addWidget(heading_);

    auto* columns = new QHBoxLayout;
    QFont mono("DejaVu Sans Mono");
    mono.setPointSize(ScreenFont(11).pointSize());
    mono.setBold(true);
    for (QWidget** column : {&left_, &right_}) {
        *column = new QWidget(this);
        (*column)->setObjectName("Column");
        (*column)->setAttribute(Qt::WA_StyledBackground);
        (*column)->setStyleSheet(
            "#Column { background: white; border: 2px solid #d8c98f; border-radius: 10px; }");
        auto* rows = new QVBoxLayout(*column);
        rows->setContentsMargins(14, 10, 14, 10);
        rows->setSpacing(0);
        for (int i = 0; i < kRanks / 2; ++i) {
            auto* line = new QLabel(*column);
            line->setFont(mono);
            line->setTextFormat(Qt::PlainText);
            rows->addWidget(line);
            rankLabels_ << line;
        }
        columns->addWidget(*column, 1);
    }
    layout->addLayout(columns);

    auto* buttons = new QHBoxLayout;
    Command3 = MakeButton("<Previous Game", this);
    Command3->setObjectName("Command3");
    Command2 = MakeButton("Next Game>", this);
    Command2->setObjectName("Command2");
    Command1 = MakeButton("OK", this, true);
    Command1->setObjectName("Command1");
    Command1->setDefault(true);
    buttons->addWidget(Command3);
    buttons->addStretch();
    buttons->addWidget(Command1);
    buttons->addStretch();
    buttons->addWidget(Command2);
    layout->addLayout(buttons);
    connect(Command1, &QPushButton::clicked, this, [this] {
        closing_ = true;
        accept();
    });
    connect(Command2, &QPushButton::clicked, this, &HighScoreForm::nextGame);
    connect(Command3, &QPushButton::clicked, this, &HighScoreForm::previousGame);

    SharedState& s = Shared();
    const bool browsing = s.CurrentGame == "Title";
    Command2->setVisible(browsing);
    Command3->setVisible(browsing);
    if (browsing) {
        s.ScoreViewIndex = 1;
        showGame(s.VisibleGameCount >= 1 ? toQ(s.VisibleGames[1]) : QString());
    } else {
        showGame(toQ(s.CurrentGame));
    }
}

void HighScoreForm::showGame(const QString& game) {
    game_ = game;
    heading_->setText("High Scores for " + game);
    const QString g = game.toLower();
    const bool none = g == "quiz" || g == "flash cards" || game.isEmpty();
    right_->setVisible(!none);
    lines_.clear();
    ScoreTable t;
    if (!none) t = ReadScoreTable(ScoreFilePath(Shared().AppPath, fromQ(game)));
    // The first three places stand out in gold, silver and bronze.
    static const char* const kMedals[] = {"#b8860b", "#6e7b8b", "#a0522d"};
    for (int r = 1; r <= kRanks; ++r) {
        QLabel* label = rankLabels_[r - 1];
        QString line;
        if (!none) {
            line = RankLine(r, toQ(t.initials(r)), toQ(t.scoreText(r)));
        } else if (r == 1) {
            line = "No Scores Collected for this Activity";
        }
        if (!line.isEmpty()) lines_ << line;
        label->setText(line);
        label->setStyleSheet(
            QString("color: %1;").arg(r <= 3 && !none ? kMedals[r - 1] : "#2a2a2a"));
    }
}

QString HighScoreForm::tableText() const {
    return lines_.join('\n');
}

void HighScoreForm::nextGame() {
    SharedState& s = Shared();
    if (s.ScoreViewIndex < s.VisibleGameCount) ++s.ScoreViewIndex;
    showGame(toQ(s.VisibleGames[s.ScoreViewIndex]));
}

void HighScoreForm::previousGame() {
    SharedState& s = Shared();
    if (s.ScoreViewIndex > 1) --s.ScoreViewIndex;
    showGame(toQ(s.VisibleGames[s.ScoreViewIndex]));
}

void HighScoreForm::closeEvent(QCloseEvent* e) {
    if (closing_) {
        e->accept();
    } else {
        e->ignore();
    }
}

void HighScoreForm::keyPressEvent(QKeyEvent* e) {
    if (e->key() == Qt::Key_Escape) return;  // only OK closes
    QDialog::keyPressEvent(e);
}

}  // namespace wm
