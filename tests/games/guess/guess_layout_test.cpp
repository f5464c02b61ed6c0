// The word-guess screens at the two classroom sizes: with the longest word expected, every box
// stands inside the word panel, and the panels and buttons keep clear of the pictures. Saves
// pictures of several animation steps when WM_SHOTS names a folder.
#include <QtTest>

#include "games/guess/bugspray/bugspray_screen.h"
#include "games/guess/hangman/hangman_screen.h"
#include "games/guess/speedtype/speedtype_screen.h"
#include "guess_road.h"

using namespace wm;
using namespace wm::test;

class GuessLayoutTest : public QObject {
    Q_OBJECT
private slots:
    void fitsAtBothSizes_data();
    void fitsAtBothSizes();
};

namespace {
QRect inScreen(QWidget* w, QWidget* screen) {
    return QRect(w->mapTo(screen, QPoint(0, 0)), w->size());
}
}  // namespace

void GuessLayoutTest::fitsAtBothSizes_data() {
    QTest::addColumn<QString>("card");
    QTest::addColumn<QSize>("size");
    for (const char* card : {"HangMan", "Bug Spray", "Speed Type"})
        for (QSize size : {QSize(1280, 800), QSize(1920, 1080)})
            QTest::newRow(
                qPrintable(QString("%1 %2x%3").arg(card).arg(size.width()).arg(size.height())))
                << QString(card) << size;
}

void GuessLayoutTest::fitsAtBothSizes() {
    QFETCH(QString, card);
    QFETCH(QSize, size);
    ShellFixture fx;
    ScreenMetrics::overrideScreenSize(size);
    const std::string word = "abcdefghijklmnopqrstuvwxyzabcd";  // thirty letters
    WriteOneList(fx, "Long", {{word, "the longest word a box row takes"}});
    auto* game = ContinueWithList(ChooserFor(card, 3, false, false), "Long");
    QVERIFY(game);
    game->resize(size);
    Pump(20);
    const QString tag = QString("%1-%2").arg(card.toLower().remove(' ')).arg(size.width());
    const QRect screen(QPoint(0, 0), size);
    if (auto* g = qobject_cast<GuessScreen*>(game)) {
        FinishClips(g);
        auto* frame1 = g->findChild<QWidget*>("Frame1");
        QVERIFY(screen.contains(inScreen(frame1, g)));
        for (int i = 0; i < 30; ++i) {
            QLabel* box = g->boxes()[i];
            QVERIFY(box->isVisible());
            QVERIFY2(frame1->rect().contains(box->geometry()), qPrintable(QString::number(i)));
            QVERIFY(box->width() >= 20);
        }
        auto* picture = g->findChild<Movie*>("MovieBoxFront");
        for (QWidget* w : {g->findChild<QWidget*>("Frame2"), static_cast<QWidget*>(g->hintButton()),
                           static_cast<QWidget*>(g->solveButton()), frame1}) {
            QVERIFY2(!inScreen(w, g).intersects(picture->geometry()), qPrintable(w->objectName()));
            QVERIFY(screen.contains(inScreen(w, g)));
        }
        // A few steps of the pictures, half-way through, for looking at.
        for (char c : QByteArray("1234")) {
            Keys(g, QString(QChar(c)));
            picture->advance(0.5);
            if (c == '1' || c == '4') Shot(g, QString("%1-miss%2").arg(tag).arg(c));
            FinishClips(g);
        }
    } else {
        auto* st = qobject_cast<SpeedType*>(game);
        QVERIFY(st);
        Pump(1000);
        Pump(1000);
        for (const char* name : {"Label1", "Label2", "Label3", "SL1", "SL2"}) {
            QWidget* w = st->findChild<QWidget*>(name);
            QVERIFY2(screen.contains(inScreen(w, st)), name);
        }
        // The word stands between the lights, whole.
        auto* word = st->findChild<QLabel*>("Label2");
        for (const char* light : {"SL1", "SL2"})
            QVERIFY2(!word->geometry().intersects(st->findChild<QWidget*>(light)->geometry()),
                     light);
        QVERIFY(word->fontMetrics().horizontalAdvance(word->text()) <=
                word->contentsRect().width());
        Shot(st, tag + "-go");
    }
}

QTEST_MAIN(GuessLayoutTest)
#include "guess_layout_test.moc"
