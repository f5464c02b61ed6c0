// Held keys read by ticks, and the pointer's show counter.
#include <QApplication>
#include <QCursor>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTest>
#include <QWidget>

#include "platform/key_state.h"
#include "platform/pointer.h"

using namespace wm;

namespace {

void key(QWidget* to, QEvent::Type type, int k, bool repeat = false) {
    QKeyEvent event(type, k, Qt::NoModifier, QString(), repeat);
    QApplication::sendEvent(to, &event);
}

bool cursorBlank() {
    const QCursor* c = QGuiApplication::overrideCursor();
    return c && c->shape() == Qt::BlankCursor;
}

}  // namespace

class PlatformInputTest : public QObject {
    Q_OBJECT
private slots:
    void heldKeysIgnoreAutoRepeat() {
        QWidget screen;
        auto* child = new QLineEdit(&screen);  // takes arrow keys for itself
        KeyState keys(&screen);
        key(child, QEvent::KeyPress, Qt::Key_Left);
        QVERIFY(keys.isDown(Qt::Key_Left));
        QVERIFY(!keys.isDown(Qt::Key_Right));
        // The keyboard repeating: release and press pairs marked auto-repeat change nothing.
        for (int i = 0; i < 3; ++i) {
            key(child, QEvent::KeyRelease, Qt::Key_Left, true);
            QVERIFY(keys.isDown(Qt::Key_Left));
            key(child, QEvent::KeyPress, Qt::Key_Left, true);
        }
        key(child, QEvent::KeyRelease, Qt::Key_Left);
        QVERIFY(!keys.isDown(Qt::Key_Left));

        // Keys to a window that is not the screen are not ours.
        QWidget other;
        key(&other, QEvent::KeyPress, Qt::Key_Up);
        QVERIFY(!keys.isDown(Qt::Key_Up));
        QVERIFY(!keys.takePressed(Qt::Key_Up));
    }

    void pressedSinceLastReadIsOneShot() {
        QWidget screen;
        KeyState keys(&screen);
        // A tap between two ticks: not held at the tick, but pressed once.
        key(&screen, QEvent::KeyPress, Qt::Key_Space);
        key(&screen, QEvent::KeyRelease, Qt::Key_Space);
        QVERIFY(!keys.isDown(Qt::Key_Space));
        QVERIFY(keys.takePressed(Qt::Key_Space));
        QVERIFY(!keys.takePressed(Qt::Key_Space));
        // Holding it down does not fire again through auto-repeat.
        key(&screen, QEvent::KeyPress, Qt::Key_Space);
        QVERIFY(keys.takePressed(Qt::Key_Space));
        key(&screen, QEvent::KeyPress, Qt::Key_Space, true);
        QVERIFY(!keys.takePressed(Qt::Key_Space));
        QVERIFY(keys.isDown(Qt::Key_Space));

        // Losing the window: nothing stays held. clear() forgets taps too.
        QEvent deactivate(QEvent::WindowDeactivate);
        QApplication::sendEvent(&screen, &deactivate);
        QVERIFY(!keys.isDown(Qt::Key_Space));
        key(&screen, QEvent::KeyPress, Qt::Key_Z);
        keys.clear();
        QVERIFY(!keys.takePressed(Qt::Key_Z));
    }

    void pointerCountsLikeThePlatform() {
        QCOMPARE(Pointer::count(), 0);
        QVERIFY(!cursorBlank());
        QCOMPARE(Pointer::show(false), -1);
        QVERIFY(cursorBlank());
        QCOMPARE(Pointer::show(false), -2);
        QCOMPARE(Pointer::show(true), -1);
        QVERIFY(Pointer::isHidden());
        QVERIFY(cursorBlank());
        QCOMPARE(Pointer::show(true), 0);
        QVERIFY(!cursorBlank());
        QCOMPARE(Pointer::show(true), 1);  // shown twice needs two hides
        QCOMPARE(Pointer::show(false), 0);
        QVERIFY(!cursorBlank());
        QCOMPARE(QGuiApplication::overrideCursor(), nullptr);  // nothing left on the stack

        // A screen that hides the pointer and closes without showing it again.
        {
            PointerScope scope;
            Pointer::show(false);
            Pointer::show(false);
            QVERIFY(cursorBlank());
        }
        QCOMPARE(Pointer::count(), 0);
        QVERIFY(!cursorBlank());
        QCOMPARE(QGuiApplication::overrideCursor(), nullptr);
    }
};

QTEST_MAIN(PlatformInputTest)
#include "platform_input_test.moc"
