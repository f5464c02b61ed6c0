// Every board game opened at the two screen sizes we support: each shown control lies wholly
// on the screen, and nothing shown overlaps the menu. Long words and meanings make it hard.
#include <QtTest>

#include <cmath>

#include <QMenuBar>

#include "game_road.h"
#include "platform/screen_metrics.h"

using namespace wm;
using namespace wm::test;

class ShowScreensFitTest : public QObject {
    Q_OBJECT
private slots:
    void controlsFitTheScreen_data();
    void controlsFitTheScreen();
};

void ShowScreensFitTest::controlsFitTheScreen_data() {
    QTest::addColumn<QString>("game");
    QTest::addColumn<int>("level");
    QTest::addColumn<QSize>("size");
    for (QSize size : {QSize(1280, 800), QSize(1920, 1080)})
        for (auto [game, level] :
             std::initializer_list<std::pair<const char*, int>>{{"Tic-Tac-Toe", 6},
                                                                {"Pachinko", 1},
                                                                {"Bomb Squad", 7},
                                                                {"Bomb Squad 2", 7},
                                                                {"Short Circuit", 10}})
            QTest::newRow(
                qPrintable(QString("%1 %2x%3").arg(game).arg(size.width()).arg(size.height())))
                << QString(game) << level << size;
}

void ShowScreensFitTest::controlsFitTheScreen() {
    QFETCH(QString, game);
    QFETCH(int, level);
    QFETCH(QSize, size);
    ShellFixture fx;
    ScreenMetrics::overrideScreenSize(size);
    std::vector<std::pair<std::string, std::string>> words;
    for (int i = 0; i < 12; ++i)
        words.push_back({"photosynt" + std::string(1, char('a' + i)),
                         "the way green plants make their own food from sunlight, water and "
                         "air, number " +
                             std::to_string(i)});
    WriteOneList(fx, "Long ones", words);
    for (int i = 1; i <= 400; ++i) fx.rng.then(std::fmod(i * 0.6180339887, 1.0));
    QWidget* screen = PlayFromTitle(game, "Long ones", level);
    Pump();
    QVERIFY2(screen, qPrintable(fx.dialogs.texts().join(" | ")));
    QCOMPARE(screen->size(), size);
    if (auto* sides = screen->findChild<QWidget*>("Frame2"); sides && sides->isVisible()) {
        if (auto* x = screen->findChild<QPushButton*>("Label3")) x->click();
        Pump(3000);
        QTest::mouseClick(screen, Qt::LeftButton, {},
                          QPoint(size.width() / 2 - 150, size.height() / 2 - 150));
    }
    const QRect whole(QPoint(0, 0), size);
    QAction* restart = screen->findChild<QAction*>("RS");
    QVERIFY2(restart, qPrintable(fx.dialogs.texts().join(" | ")));
    auto* bar = qobject_cast<QMenuBar*>(restart->parent());
    QVERIFY(bar);
    const int menu = bar->sizeHint().height();
    for (QWidget* w : screen->findChildren<QWidget*>()) {
        if (!w->isVisible() || w->parentWidget() != screen || qobject_cast<QMenuBar*>(w)) continue;
        QVERIFY2(whole.contains(w->geometry()), qPrintable(w->objectName()));
        QVERIFY2(w->geometry().top() >= menu, qPrintable(w->objectName()));
    }
    Shot(screen, QString("fit-%1-%2").arg(game).arg(size.width()).remove(' '));
}

QTEST_MAIN(ShowScreensFitTest)
#include "show_screens_fit_test.moc"
