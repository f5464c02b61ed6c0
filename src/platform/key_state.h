// Which keys are held, for screens whose ticks read the keyboard rather than react to it.
#pragma once

#include <QObject>
#include <QPointer>
#include <QSet>

class QWidget;

namespace wm {

// A key handler of a timer-driven game only sets flags; the next tick reads them. Made on a
// screen, this watches the keys that reach the screen or anything inside it, without taking
// them: the screen's own key handling (Escape, menu keys) goes on as before.
class KeyState : public QObject {
    Q_OBJECT
public:
    explicit KeyState(QWidget* screen);
    ~KeyState() override;
    // Held now. The keyboard's auto-repeat (its release and press pairs) does not count.
    bool isDown(int key) const;
    // Pressed since the last call for this key, even if let go again before the tick: one-shot
    // keys such as fire or jump.
    bool takePressed(int key);
    // Forgets everything, as when the game pauses or its window loses the keyboard.
    void clear();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool concerns(QObject* watched) const;
    QPointer<QWidget> screen_;
    QSet<int> down_;
    QSet<int> pressed_;
};

}  // namespace wm
