// Every registered game laid out at the two screens a classroom has, on a list a teacher might
// make, a moment into play: no control or text reaches past the screen, no two texts lie over
// each other, and no text is cut by its box; each shows its caption and offers the palette where
// words are typed; and it looks as it did (see LookFault). WM_GAMES="Name|Name" takes only those
// games.
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

// Each game's window caption, its name but for these ("game=caption"); the games that offer the
// palette of foreign letters (those where words are typed); the tune playing a moment into play,
// where one plays yet.
const QStringList kCaptions = {"Asteroid Zap=Asteroid Blast!",
                               "Blind Tiles=Blind Tiles!",
                               "Bug Spray=Bug Spray!",
                               "Crunch Man=Crunch Man!",
                               "Freeze-It=Freeze-It!",
                               "Froggy=Froggy!",
                               "HangMan=Hangman!",
                               "Letter Drop=Letter Drop!",
                               "Mini Golf=Wordmere Mini-Golf Course"};
const QStringList kPalette = {"Blind Tiles",  "Bug Spray", "Code Breaker", "Crossword",
                              "Flying Cow",   "Freeze-It", "HangMan",      "Jailbreak",
                              "Safe Cracker", "Scramble",  "Toad Race",    "Wheel of Money"};
const QStringList kTunes = {"Blind Tiles=vivaldi.mid",      "BreakThru=breakthru.mid",
                            "Bridge Out=bridgeout.mid",     "Cannon Shot=cannonshot.mid",
                            "Code Breaker=codebreaker.mid", "Concentration=concentration.mid",
                            "Crossword=entertainer.mid",    "Flying Cow=cowtune.mid",
                            "Freeze-It=freeze.mid",         "Hang Glider=hangglider.mid",
                            "HangMan=hangman.mid",          "Jailbreak=jailbreak.mid",
                            "Letter Toss=lettertoss.mid",   "Princess=princess.mid",
                            "Safe Cracker=safecracker.mid", "Slingshot=slingshot.mid",
                            "Slot Machine=slotmachine.mid", "Spiderwebs=spiderwebs.mid",
                            "Toad Race=toadrace.mid",       "Tower Assault=towerassault.mid",
                            "Word Bricks=wordbricks.mid",   "Word Search=music.mid"};

// What `table` gives for `game` ("game=value"), or `otherwise`.
QString Of(const QStringList& table, const QString& game, const QString& otherwise = {}) {
    for (const QString& row : table)
        if (row.startsWith(game + '=')) return row.mid(game.size() + 1);
    return otherwise;
}

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
    if (auto* l = qobject_cast<const QLabel*>(w))
        return l->pixmap().isNull() ? l->text() : QString();
    if (auto* b = qobject_cast<const QAbstractButton*>(w)) return b->text();
    if (qobject_cast<const QLineEdit*>(w)) return "box";
    return {};
}

// A label of plain text, whose lines can be measured (null for any other widget).
const QLabel* PlainLabel(const QWidget* w) {
    auto* l = qobject_cast<const QLabel*>(w);
    return l && l->textFormat() != Qt::RichText && !Qt::mightBeRichText(l->text()) ? l : nullptr;
}

QRect Room(const QLabel* l) {
    const int m = l->margin();
    return l->contentsRect().adjusted(m, m, -m, -m);
}

int Flags(const QLabel* l) {
    return int(l->alignment()) | (l->wordWrap() ? Qt::TextWordWrap : 0);
}

// Where a widget's words stand on the screen: a label's lines as its alignment sets them, the
// whole of any other.
QRect Ink(const QWidget* w, const QWidget* top) {
    const QRect all = OnScreen(w, top);
    const QLabel* l = PlainLabel(w);
    if (!l) return all.adjusted(2, 2, -2, -2);
    const QRect ink = QFontMetrics(l->font()).boundingRect(Room(l), Flags(l), l->text());
    return ink.translated(all.topLeft()) & all;
}

QString Name(const QWidget* w) {
    return QString("%1 '%2'").arg(
        w->objectName().isEmpty() ? w->metaObject()->className() : w->objectName(),
        TextOf(w).left(30));
}

// What is wrong with the screen as it stands, one line a fault.
QStringList Faults(QWidget* screen) {
    QStringList faults;
    std::vector<QWidget*> texts, shown;
    for (QWidget* w : screen->findChildren<QWidget*>()) {
        const QRect r = OnScreen(w, screen);
        if (!Shown(w, screen) || w->isWindow() || r.isEmpty()) continue;
        shown.push_back(w);
        if (!screen->rect().adjusted(-1, -1, 1, 1).contains(r))
            faults << Name(w) + QString::asprintf(" at %d,%d %dx%d reaches past the screen", r.x(),
                                                  r.y(), r.width(), r.height());
        const QString text = TextOf(w);
        if (text.trimmed().isEmpty()) continue;
        texts.push_back(w);
        const int across = QFontMetrics(w->font()).horizontalAdvance(QString(text).remove('&'));
        if (qobject_cast<QAbstractButton*>(w) && across > r.width() - 4)
            faults << Name(w) + QString::asprintf(" needs %d across and has %d", across, r.width());
        const QLabel* label = PlainLabel(w);
        if (!label) continue;
        // One line is measured by its ink; wrapped lines by their line height, the last line's
        // descent being air.
        const QRect room = Room(label);
        const QFontMetrics fm(label->font());
        QRect need = fm.boundingRect(QRect(0, 0, room.width(), 100000), Flags(label), text);
        need.setHeight(label->wordWrap() ? need.height() - fm.descent()
                                         : fm.tightBoundingRect(text).height());
        if (need.width() > room.width() + 2 || need.height() > room.height() + 2)
            faults << Name(w) + QString::asprintf(" needs %dx%d and has %dx%d", need.width(),
                                                  need.height(), room.width(), room.height());
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
        if (!card.built() || !GameTaken(card.name)) continue;
        ++games;
        const QString name = QString::fromStdString(card.name);
        for (QSize size : {QSize(1280, 800), QSize(1920, 1080)})
            QTest::addRow("%s %dx%d", qPrintable(name), size.width(), size.height())
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
    QWidget* screen =
        ContinueWithList(ChooserFor(game, card->options.start, false), "Science Words");
    QVERIFY2(screen && screen->objectName() == QString::fromStdString(card->screen),
             qPrintable(fx.dialogs.last()));
    for (int t = 0; t < 2500; t += 50) Pump(50);
    QCOMPARE(screen->windowTitle(), Of(kCaptions, game, game));
    QCOMPARE(QFileInfo(fx.music.opened).fileName(), Of(kTunes, game));
    QCOMPARE(TriggerMenu(screen, "FLang"), kPalette.contains(game));
    QCOMPARE(screen->size(), size);
    if (size == QSize(1280, 800)) WM_CHECK_LOOK(game, screen);
    const QStringList faults = Faults(screen);
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join("\n")));
}

QTEST_MAIN(GameLayout)
#include "game_layout_test.moc"
