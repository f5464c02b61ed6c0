#include <QtTest>
class FlyingCowScreenTest : public QObject {
    Q_OBJECT
};
QTEST_MAIN(FlyingCowScreenTest)
#include "flying_cow_screen_test.moc"
