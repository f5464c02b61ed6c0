#include <QtTest>
class ToadRaceScreenTest : public QObject {
    Q_OBJECT
};
QTEST_MAIN(ToadRaceScreenTest)
#include "toad_race_screen_test.moc"
