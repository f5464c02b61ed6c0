// Crunch Man on its screen: the open field on a play field drawn by block copies, the mouth
// saved-under and restored each tick, the mines pulsing in place, the two deaths.
#pragma once

#include <QImage>
#include <QWidget>
#include <vector>

#include "games/action/crunch_man/crunch_man_rules.h"
#include "platform/play_field.h"
#include "platform/pointer.h"
#include "shell/game_frame.h"

namespace wm {

class CrunchManGame : public QWidget {
    Q_OBJECT
public:
    explicit CrunchManGame(QWidget* parent = nullptr);

    GameFrame& frame() { return frame_; }
    PlayField* field() const { return field_; }
    const crunch::Round& round() const { return round_; }
    crunch::Round& round() { return round_; }
    QString definition() const { return Label1; }  // empty when hidden
    QString scoreCaption() const { return Label2; }
    QString spelled() const { return Label3; }
    // The pictures by holder number, as the tick and the deaths use them.
    const QImage& picture(int holder) const { return PicUfo[holder]; }
    bool dying() const;
    void SetupGame();
    void gameTick();  // Timer1, public for the benchmark

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void loadPictures();
    void drawBands();
    void drawLabel(int k, bool withBack = true);
    void overlayLabels(const QRect& area);
    void drawDying(int picture);
    void letterDeath();
    void mineDeath();
    void lost();
    void won();
    QRect labelRect(int k) const;

    GameFrame frame_;
    PlayField* field_;
    PointerScope pointer_;
    crunch::Field geometry_;
    crunch::Round round_;
    crunch::Dying dying_;
    SavedBlock under_;               // holder 13: the ground under the mouth
    FieldSprite image1_;             // the dying mouth, stretched
    std::vector<QImage> PicUfo;      // 0..18
    std::vector<QImage> explosion_;  // 1..7 pictures, 8 black
    QString Label1, Label2, Label3;
    GameTimer& Timer1;
    GameTimer& Timer2;
    GameTimer& Timer3;
    GameTimer& Timer4;
};

}  // namespace wm
