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
    for (QLabel** l : {&left_, &right_}) {
        *l = new QLabel(this);
        (*l)->setFont(mono);
        (*l)->setTextFormat(Qt::PlainText);
        (*l)->setAlignment(Qt::AlignTop | Qt::AlignLeft);
        (*l)->setStyleSheet(
            "background: white; border: 2px solid #d8c98f; border-radius: 10px; padding: 10px;"
            "color: #2a2a2a;");
        columns->addWidget(*l);
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
    if (g == "quiz" || g == "flash cards" || game.isEmpty()) {
        left_->setText("No Scores Collected for this Activity");
        right_->clear();
        right_->hide();
        return;
    }
    right_->show();
    SharedState& s = Shared();
    ScoreTable t = ReadScoreTable(ScoreFilePath(s.AppPath, fromQ(game)));
    QStringList a, b;
    for (int r = 1; r <= kRanks; ++r) {
        QString line = RankLine(r, toQ(t.initials(r)), toQ(t.scoreText(r)));
        (r <= 25 ? a : b) << line;
    }
    left_->setText(a.join('\n'));
    right_->setText(b.join('\n'));
}

QString HighScoreForm::tableText() const {
    return right_->isVisible() || !right_->text().isEmpty() ? left_->text() + "\n" + right_->text()
                                                            : left_->text();
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
