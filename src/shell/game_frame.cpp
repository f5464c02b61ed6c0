#include "shell/game_frame.h"

#include <QEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QTimer>
#include <QToolTip>

#include "core/language_codes.h"
#include "core/line_file.h"
#include "core/score_table.h"
#include "core/shared_state.h"
#include "core/strings.h"
#include "platform/dialogs.h"
#include "platform/music.h"
#include "platform/services.h"
#include "platform/speech.h"
#include "platform/text.h"
#include "shell/enter_initials_form.h"
#include "shell/fl_form.h"
#include "shell/high_score_form.h"
#include "shell/screens.h"

namespace wm {

namespace {
std::function<void(QDialog&)>& modalHook() {
    static std::function<void(QDialog&)> hook;
    return hook;
}

QString withScore(QString text, const QString& score) {
    return text.replace("{score}", score);
}
}  // namespace

QLocale SpeechLocale(ListSide side) {
    const SharedState& s = Shared();
    std::vector<LanguageCode> codes;
    try {
        codes = ReadLanguageCodes(JoinPath(s.AppPath, kLanguageFileName));
    } catch (const FileError&) {
        // An unreadable language file leaves only English lists with a voice.
    }
    return LocaleForLanguage(side == ListSide::Word ? s.WordsLanguage : s.MeaningsLanguage, codes);
}

QString SpeechBlocked(ListSide side) {
    if (Shared().SpeechOn != kTrue)
        return "Your teacher has turned off speech in Teacher Management.";
    const QLocale locale = SpeechLocale(side);
    return SpeechStatusText(speech().status(locale), locale);
}

bool SayAloud(const Spoken& spoken) {
    if (spoken.text.trimmed().isEmpty() || !SpeechBlocked(spoken.side).isEmpty()) return false;
    speech().say(spoken.text, SpeechLocale(spoken.side), Shared().SpeechRate);
    return true;
}

Spoken SecretWord(bool wordShown, bool meaningShown) {
    const SharedState& s = Shared();
    if (wordShown) return {toQ(s.TheWord), ListSide::Word};
    if (meaningShown) return {toQ(s.TheMeaning), ListSide::Meaning};
    return {{}, ListSide::Word, "You can hear the word once you have found it."};
}

Spoken ShownWord() {
    return {toQ(Shared().TheWord), ListSide::Word};
}

int RunModal(QDialog& dialog) {
    if (modalHook()) {
        dialog.show();
        modalHook()(dialog);
        return dialog.result();
    }
    return dialog.exec();
}

void SetModalHook(std::function<void(QDialog&)> hook) {
    modalHook() = std::move(hook);
}

void ShowHowToPlay() {
    dialogs().message(toQ(Shared().HowToText), "How To Play");
}

void ShowHighScores(QWidget* parent) {
    HighScoreForm form(parent);
    RunModal(form);
}

std::string FilterInitials(const std::string& typed) {
    const std::string l = LCase(typed);
    if (l == "fuc" || l == "fuk" || l == "ass") return "WIN";
    return typed;
}

int PlaceHighScore(QWidget* game, const std::string& scoreText, bool smallestFirst) {
    SharedState& s = Shared();
    const std::string path = ScoreFilePath(s.AppPath, s.CurrentGame);
    ScoreTable table = ReadScoreTable(path);
    const double score = Val(scoreText);
    const int rank = smallestFirst ? FindRankSmallestFirst(table, score) : FindRank(table, score);
    if (rank == 0) return 0;
    s.PlacedRank = static_cast<short>(rank);
    {
        EnterInitialsForm form(game);
        RunModal(form);
    }
    InsertScore(table, rank, FilterInitials(s.LastInitials), scoreText);
    try {
        WriteScoreTable(path, table);
    } catch (const std::exception& e) {
        dialogs().message(toQ(e.what()), "High Scores");
    }
    ShowHighScores(game);
    return rank;
}

GameFrame::GameFrame(QWidget* screen, GameMenuNames names, std::function<void()> newGame)
    : QObject(screen), screen_(screen), names_(std::move(names)), newGame_(std::move(newGame)) {
    scoreText = [](double score) { return toQ(NumText(score)); };
    menu_ = new QMenuBar(screen);
    menu_->setObjectName("GameMenu");
    menu_->setNativeMenuBar(false);
    addEntry(Entry::Restart, "Restart", names_.restart, [this] { this->newGame(); });
    addEntry(Entry::Scores, "High Scores", names_.scores, [this] { ShowHighScores(screen_); });
    addEntry(Entry::HowTo, "How To Play", names_.howTo, [] { ShowHowToPlay(); });
    addEntry(Entry::Quit, "Quit", names_.quit, [this] { quit(); });
    screen->installEventFilter(this);
}

GameFrame::~GameFrame() {
    // The screen is going: nothing of this game may run any more.
    leaving_ = true;
    if (sayWhat_) speech().stop();
    for (auto& [name, t] : timers_) t->stop();
    stopMusic();
}

void GameFrame::addEntry(Entry which, const QString& text, const QString& name,
                         std::function<void()> action) {
    QAction* a = new QAction(text, menu_);
    a->setObjectName(name);
    connect(a, &QAction::triggered, this, [this, action] {
        if (!leaving_) action();
    });
    // The entries keep their order whatever is added later.
    QAction* before = nullptr;
    for (auto& [w, existing] : entries_) {
        if (w > which) {
            before = existing;
            break;
        }
    }
    menu_->insertAction(before, a);
    entries_[which] = a;
}

QAction* GameFrame::entry(Entry which) const {
    auto it = entries_.find(which);
    return it == entries_.end() ? nullptr : it->second;
}

int GameFrame::menuHeight() const {
    return menu_->sizeHint().height();
}

QRect GameFrame::playArea() const {
    const int top = menuHeight();
    return screen_ ? QRect(0, top, screen_->width(), screen_->height() - top) : QRect();
}

void GameFrame::hostPlay(QWidget* play) {
    if (!screen_) return;
    screen_->setFocusPolicy(Qt::StrongFocus);
    if (play) play->setFocusPolicy(Qt::NoFocus);
    screen_->setAutoFillBackground(true);
    QPalette pal = screen_->palette();
    pal.setColor(QPalette::Window, Qt::black);
    screen_->setPalette(pal);
}

void GameFrame::setForeign(std::function<void(const QString&)> insert) {
    if (names_.foreign.isEmpty() || entry(Entry::Foreign)) return;
    addEntry(Entry::Foreign, names_.foreignText, names_.foreign, [this, insert] {
        SharedState& s = Shared();
        // Kept side effect: the score file follows CurrentGame from here on.
        const QString key = names_.foreignKey;
        if (!key.isEmpty() && LCase(s.CurrentGame) != LCase(fromQ(key))) s.CurrentGame = fromQ(key);
        FLForm palette(screen_);
        if (RunModal(palette) == QDialog::Accepted && !s.ForeignChar.empty())
            insert(toQ(s.ForeignChar));
    });
}

void GameFrame::setSayIt(std::function<Spoken()> what) {
    if (entry(Entry::SayIt)) return;
    sayWhat_ = std::move(what);
    addEntry(Entry::SayIt, "Say It", "mnuSayIt", [this] { sayIt(); });
    connect(&speech(), &Speech::statusChanged, this, &GameFrame::refreshSayIt);
    // The entry is brought up to date as the pointer comes to the menu, before any click.
    menu_->installEventFilter(this);
    refreshSayIt();
}

void GameFrame::refreshSayIt() {
    QAction* a = entry(Entry::SayIt);
    if (!a || !sayWhat_) return;
    const Spoken spoken = sayWhat_();
    QString why = SpeechBlocked(spoken.side);
    if (why.isEmpty() && spoken.text.trimmed().isEmpty()) why = spoken.why;
    a->setEnabled(why.isEmpty());
    a->setToolTip(why.isEmpty()
                      ? (spoken.side == ListSide::Word ? "Hear the word" : "Hear the meaning")
                      : why);
}

bool GameFrame::sayIt() {
    if (!sayWhat_ || leaving_) return false;
    const bool said = SayAloud(sayWhat_());
    refreshSayIt();
    return said;
}

GameTimer& GameFrame::timer(const QString& name, int intervalMs, std::function<void()> tick,
                            bool singleShot) {
    auto it = timers_.find(name);
    if (it != timers_.end()) delete it->second;
    auto* t = new GameTimer(this);
    t->setObjectName(name);
    t->setInterval(intervalMs);
    t->setSingleShot(singleShot);
    connect(t, &GameTimer::timeout, this, [this, tick = std::move(tick)] {
        if (!leaving_ && tick) tick();
    });
    timers_[name] = t;
    return *t;
}

GameTimer* GameFrame::findTimer(const QString& name) const {
    auto it = timers_.find(name);
    return it == timers_.end() ? nullptr : it->second;
}

void GameFrame::stopTimers() {
    for (auto& [name, t] : timers_) t->stop();
}

void GameFrame::stopTimersForEnd() {
    for (auto& [name, t] : timers_)
        if (!runOnAtEnd_.count(name)) t->stop();
}

void GameFrame::newGame() {
    if (leaving_) return;
    for (auto& [name, t] : timers_)
        if (!keptOnRestart_.count(name)) t->stop();
    ++round_;
    if (newGame_) newGame_();
    refreshSayIt();
}

std::function<void()> GameFrame::later(std::function<void()> then) {
    QPointer<GameFrame> self(this);
    const int round = round_;
    return [self, round, then = std::move(then)] {
        if (self && !self->leaving_ && self->round_ == round && then) then();
    };
}

GameTimer& GameFrame::pauseTimer(const QString& name, int intervalMs) {
    pause_ = &timer(
        name, intervalMs,
        [this] {
            auto then = std::move(paused_);
            paused_ = nullptr;
            if (then) then();
        },
        true);
    return *pause_;
}

void GameFrame::pauseThen(int ms, std::function<void()> then) {
    paused_ = later(std::move(then));
    if (pause_) pause_->start(ms);
}

void GameFrame::setMusic(MusicKind kind, QString tune) {
    musicKind_ = kind;
    tune_ = std::move(tune);
}

void GameFrame::startMusic() {
    SharedState& s = Shared();
    switch (musicKind_) {
        case MusicKind::None:
            return;
        case MusicKind::Shared:
            StartBackgroundMusic(tune_);
            return;
        case MusicKind::Own:
            if (s.SoundOn == kTrue && !ownMusicOpen_) {
                music().open(appFile("sounds/" + tune_));
                music().playFromStart();
                ownMusicOpen_ = true;
            }
            return;
    }
}

void GameFrame::stopMusic() {
    switch (musicKind_) {
        case MusicKind::None:
        case MusicKind::Shared:
            // Quit and unload close the alias whether or not this game opened it.
            StopBackgroundMusic();
            return;
        case MusicKind::Own:
            if (ownMusicOpen_) music().close();
            ownMusicOpen_ = false;
            return;
    }
}

bool GameFrame::musicOpen() const {
    if (musicKind_ == MusicKind::Own) return ownMusicOpen_;
    return musicKind_ == MusicKind::Shared && Shared().BgmOpen != kFalse;
}

void GameFrame::quit() {
    if (leaving_) return;
    leaving_ = true;
    stopTimers();
    stopMusic();
    OpenScreen("Title", screen_);
}

void GameFrame::refuse(const QString& text, const QString& title) {
    if (leaving_) return;
    stopTimers();
    dialogs().message(text, title.isEmpty() ? screen_->windowTitle() : title);
    // Left from the event loop, so that a game refusing while it loads is not closed inside
    // its own constructor.
    QTimer::singleShot(0, this, [this] { quit(); });
}

bool GameFrame::askTryAgain(const QString& text, const QString& title) {
    if (leaving_) return false;
    stopTimersForEnd();
    const bool again = dialogs().yesNo(text, title);
    if (again) {
        newGame();
    } else {
        quit();
    }
    return again;
}

void GameFrame::wonGame(const EndTexts& texts) {
    if (leaving_) return;
    stopTimersForEnd();
    SharedState& s = Shared();
    if (texts.wholeScore) s.Score = static_cast<double>(Int(s.Score));
    const int rank = PlaceHighScore(screen_, NumText(s.Score), texts.smallestFirst);
    const QString shown = scoreText(s.Score);
    const bool placed = rank > 0;
    if (!dialogs().yesNo(withScore(placed ? texts.placed : texts.notPlaced, shown), texts.title)) {
        quit();
        return;
    }
    const bool offer = placed ? texts.raiseWhenPlaced : texts.raiseWhenNotPlaced;
    if (offer && s.Difficulty < s.MaxDifficulty && dialogs().yesNo(texts.raise, texts.title))
        s.Difficulty += 1;
    newGame();
}

bool GameFrame::eventFilter(QObject* watched, QEvent* event) {
    if (watched == menu_) {
        switch (event->type()) {
            case QEvent::Enter:
            case QEvent::MouseButtonPress:
                refreshSayIt();
                break;
            case QEvent::ToolTip: {
                // A menu bar shows no tooltips of its own; this one says why the entry is grey.
                auto* help = static_cast<QHelpEvent*>(event);
                QAction* a = menu_->actionAt(help->pos());
                if (a && a == entry(Entry::SayIt)) {
                    refreshSayIt();
                    QToolTip::showText(help->globalPos(), a->toolTip(), menu_);
                    return true;
                }
                break;
            }
            default:
                break;
        }
        return QObject::eventFilter(watched, event);
    }
    if (watched == screen_) {
        if (event->type() == QEvent::Resize) {
            menu_->setGeometry(0, 0, screen_->width(), menuHeight());
        } else if (event->type() == QEvent::KeyPress && escapeQuits_ &&
                   static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
            quit();
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace wm
