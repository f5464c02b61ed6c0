// Every registered game laid out at the two screens a classroom has, on a list a teacher might
// make, a moment into play: no control or text reaches past the screen, no two texts lie over
// each other, and no text is cut by its box; each shows its caption and offers the palette where
// words are typed; and it looks as it did (see LookFault). WM_GAMES="Name|Name" takes only those games.
#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QtTest>

#include "game_road.h"
#include "look.h"
#include "shell/game_registry.h"

using namespace wm;
using namespace wm::test;

namespace {

// Each game's window caption, whether it offers the palette of foreign letters (the games where
// words are typed), and the tune playing a moment into play (none yet where it is empty).
struct Opening {
    QString caption;
    bool palette;
    QString tune;
};
const std::map<QString, Opening> kOpenings = {
    {"Asteroid Zap", {"Asteroid Blast!", false, ""}},
    {"Basketball", {"Basketball", false, ""}},
    {"Blind Tiles", {"Blind Tiles!", true, "vivaldi.mid"}},
    {"Bomb Squad 2", {"Bomb Squad 2", false, ""}},
    {"Bomb Squad", {"Bomb Squad", false, ""}},
    {"BreakThru", {"BreakThru", false, "breakthru.mid"}},
    {"Bridge Out", {"Bridge Out", false, "bridgeout.mid"}},
    {"Bug Spray", {"Bug Spray!", true, ""}},
    {"Cannon Shot", {"Cannon Shot", false, "cannonshot.mid"}},
    {"Code Breaker", {"Code Breaker", true, "codebreaker.mid"}},
    {"Concentration", {"Concentration", false, "concentration.mid"}},
    {"Crossword", {"Crossword", true, "entertainer.mid"}},
    {"Crunch Man", {"Crunch Man!", false, ""}},
    {"Flash Cards", {"Flash Cards", false, ""}},
    {"Flying Cow", {"Flying Cow", true, "cowtune.mid"}},
    {"Freeze-It", {"Freeze-It!", true, "freeze.mid"}},
    {"Froggy", {"Froggy!", false, ""}},
    {"Hang Glider", {"Hang Glider", false, "hangglider.mid"}},
    {"HangMan", {"Hangman!", true, "hangman.mid"}},
    {"Jailbreak", {"Jailbreak", true, "jailbreak.mid"}},
    {"Letter Drop", {"Letter Drop!", false, ""}},
    {"Letter Toss", {"Letter Toss", false, "lettertoss.mid"}},
    {"Mini Golf", {"Wordmere Mini-Golf Course", false, ""}},
    {"Pachinko", {"Pachinko", false, ""}},
    {"Princess", {"Princess", false, "princess.mid"}},
    {"Quiz", {"Quiz", false, ""}},
    {"Safe Cracker", {"Safe Cracker", true, "safecracker.mid"}},
    {"Scramble", {"Scramble", true, ""}},
    {"Short Circuit", {"Short Circuit", false, ""}},
    {"Slingshot", {"Slingshot", false, "slingshot.mid"}},
    {"Slot Machine", {"Slot Machine", false, "slotmachine.mid"}},
    {"Speed Type", {"Speed Type", false, ""}},
    {"Spell Crush", {"Spell Crush", false, ""}},
    {"Spiderwebs", {"Spiderwebs", false, "spiderwebs.mid"}},
    {"Tic-Tac-Toe", {"Tic-Tac-Toe", false, ""}},
    {"Toad Race", {"Toad Race", true, "toadrace.mid"}},
    {"Tower Assault", {"Tower Assault", false, "towerassault.mid"}},
    {"Wheel of Money", {"Wheel of Money", true, ""}},
    {"Word Bricks", {"Word Bricks", false, "wordbricks.mid"}},
    {"Word Maze", {"Word Maze", false, ""}},
    {"Word Search", {"Word Search", false, "music.mid"}},
    {"Word Zap", {"Word Zap", false, ""}},
};

// Short and long words, and definitions long enough to wrap.
const std::vector<std::pair<std::string, std::string>> kList = {
    {"volcano", "a mountain that can throw out hot melted rock"},
    {"habitat", "the natural home of an animal or plant"},
    {"photosynthesis", "how green plants make their food from sunlight, air and water"},
    {"orbit", "the curved path of a planet around a star"},
    {"erosion", "the slow wearing away of rock and soil by wind and water"},
    {"fossil", "the remains of a very old plant or animal, kept in rock"},
    {"glacier", "a huge river of ice that moves very slowly"},
    {"nocturnal", "active at night"},
    {"migrate", "to move from one place to another with the seasons"},
    {"ecosystem", "living things and their surroundings, working together"},
    {"evaporate", "to turn from a liquid into a gas"},
    {"thermometer", "a tool that measures how hot or cold something is"},
};

bool Shown(const QWidget* w, const QWidget* top) {
    for (; w && w != top; w = w->parentWidget())
        if (!w->isVisible()) return false;
    return true;
}

QRect OnScreen(const QWidget* w, const QWidget* top) {
    return QRect(w->mapTo(top, QPoint(0, 0)), w->size());
}

// A widget that shows words: a label with text, a button, a typing box.
QString TextOf(const QWidget* w) {
    if (auto* l = qobject_cast<const QLabel*>(w)) return l->pixmap().isNull() ? l->text() : QString();
    if (auto* b = qobject_cast<const QAbstractButton*>(w)) return b->text();
    if (qobject_cast<const QLineEdit*>(w)) return "box";
    return {};
}

// Where a widget's words stand on the screen: a label's lines as its alignment sets them, the
// whole of any other.
QRect Ink(const QWidget* w, const QWidget* top) {
    const QRect all = OnScreen(w, top);
    auto* l = qobject_cast<const QLabel*>(w);
    if (!l || l->textFormat() == Qt::RichText || Qt::mightBeRichText(l->text()))
        return all.adjusted(2, 2, -2, -2);
    const QRect room = l->contentsRect().adjusted(l->margin(), l->margin(), -l->margin(), -l->margin());
    const QRect ink = QFontMetrics(l->font()).boundingRect(
        room, int(l->alignment()) | (l->wordWrap() ? Qt::TextWordWrap : 0), l->text());
    return ink.translated(all.topLeft()) & all;
}

QString Name(const QWidget* w) {
    return QString("%1 '%2'").arg(w->objectName().isEmpty() ? w->metaObject()->className()
                                                            : w->objectName(),
                                  TextOf(w).left(30));
}

// What is wrong with the screen as it stands, one line a fault.
QStringList Faults(QWidget* screen) {
    QStringList faults;
    const QRect whole = screen->rect();
    std::vector<QWidget*> texts, shown;
    for (QWidget* w : screen->findChildren<QWidget*>()) {
        if (!Shown(w, screen) || w->isWindow()) continue;
        const QRect r = OnScreen(w, screen);
        if (r.isEmpty()) continue;
        shown.push_back(w);
        if (!whole.adjusted(-1, -1, 1, 1).contains(r))
            faults << QString("%1 at %2,%3 %4x%5 reaches past the screen")
                          .arg(Name(w)).arg(r.x()).arg(r.y()).arg(r.width()).arg(r.height());
        const QString text = TextOf(w);
        if (text.trimmed().isEmpty()) continue;
        texts.push_back(w);
        if (auto* button = qobject_cast<QAbstractButton*>(w)) {
            const int need = QFontMetrics(button->font()).horizontalAdvance(QString(text).remove('&'));
            if (need > r.width() - 4)
                faults << QString("%1 needs %2 across and has %3").arg(Name(w)).arg(need).arg(r.width());
        }
        auto* label = qobject_cast<QLabel*>(w);
        if (!label || label->textFormat() == Qt::RichText || Qt::mightBeRichText(text)) continue;
        const QRect room = label->contentsRect().adjusted(label->margin(), label->margin(),
                                                          -label->margin(), -label->margin());
        // One line is measured by its ink; wrapped lines by their line height, the last line's
        // descent being air.
        const QFontMetrics fm(label->font());
        QRect need = fm.boundingRect(QRect(0, 0, room.width(), 100000),
                                     int(label->alignment()) |
                                         (label->wordWrap() ? Qt::TextWordWrap : 0),
                                     text);
        if (!label->wordWrap()) need.setHeight(fm.tightBoundingRect(text).height());
        else need.setHeight(need.height() - fm.descent());
        if (need.width() > room.width() + 2 || need.height() > room.height() + 2)
            faults << QString("%1 needs %2x%3 and has %4x%5")
                          .arg(Name(w)).arg(need.width()).arg(need.height())
                          .arg(room.width()).arg(room.height());
    }
    // A text never lies half over another widget.
    for (QWidget* t : texts)
        for (QWidget* o : shown) {
            if (o == t || t->isAncestorOf(o) || o->isAncestorOf(t)) continue;
            const QRect a = Ink(t, screen);
            const bool text = std::find(texts.begin(), texts.end(), o) != texts.end();
            const QRect b = text ? Ink(o, screen) : OnScreen(o, screen);
            // A panel or a picture under the whole of a text is the design.
            if (!a.intersects(b) || (!text && b.contains(a))) continue;
            if (text && o < t) continue;  // each pair of texts once
            faults << Name(t) + " lies over " + Name(o);
        }
    return faults;
}


}  // namespace

class GameLayout : public QObject {
    Q_OBJECT
private slots:
    void nothingClipsOrOverlaps_data();
    void nothingClipsOrOverlaps();
};

void GameLayout::nothingClipsOrOverlaps_data() {
    QTest::addColumn<QString>("game");
    QTest::addColumn<QSize>("size");
    int games = 0;
    for (const GameCard& card : Catalogue()) {
        const QString name = QString::fromStdString(card.name);
        if (!card.built() || !GameTaken(card.name)) continue;
        ++games;
        for (QSize size : {QSize(1280, 800), QSize(1920, 1080)})
            QTest::newRow(qPrintable(QString("%1 %2x%3").arg(name).arg(size.width()).arg(size.height())))
                << name << size;
    }
    QVERIFY(games >= 1);
}

void GameLayout::nothingClipsOrOverlaps() {
    QFETCH(QString, game);
    QFETCH(QSize, size);
    ShellFixture fx;
    SeededRng dice(7);
    SetRng(&dice);
    ScreenMetrics::overrideScreenSize(size);
    SetModalHook([](QDialog& d) { d.reject(); });
    WriteOneList(fx, "Science Words", kList);
    const GameCard* card = FindCard(game.toStdString());
    QVERIFY(card);
    QWidget* screen = ContinueWithList(ChooserFor(game, card->options.start, false), "Science Words");
    QVERIFY2(screen && screen->objectName() == QString::fromStdString(card->screen),
             qPrintable(fx.dialogs.last()));
    for (int t = 0; t < 2500; t += 50) Pump(50);
    const auto opening = kOpenings.find(game);
    QVERIFY2(opening != kOpenings.end(), "a game missing from the table of openings");
    QCOMPARE(screen->windowTitle(), opening->second.caption);
    QCOMPARE(QFileInfo(fx.music.opened).fileName(), opening->second.tune);
    QCOMPARE(TriggerMenu(screen, "FLang"), opening->second.palette);
    QCOMPARE(screen->size(), size);
    if (size == QSize(1280, 800)) {
        const QString fault = LookFault(game, screen->grab().toImage());
        QVERIFY2(fault.isEmpty(), qPrintable(fault));
    }
    const QStringList faults = Faults(screen);
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join("\n")));
}

QTEST_MAIN(GameLayout)
#include "game_layout_test.moc"
