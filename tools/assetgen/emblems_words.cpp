// Emblems of the word and puzzle games.
#include "emblems.h"
#include "paint_kit.h"

#include <QRadialGradient>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace wm::assetgen {

namespace {

const QColor kInk(40, 30, 20);
const QColor kPaper(255, 252, 240);
const QColor kTileYellow(255, 212, 40);

// Bold letter centred on a point.
void letter(QPainter& p, const QString& s, QPointF at, double size, const QColor& colour) {
    p.fillPath(centredText(s, boldFont(size), at), colour);
}

// A sheet of paper with a soft edge, for the grid puzzles.
void paper(QPainter& p, const QRectF& r, double angle = 0) {
    p.save();
    p.translate(r.center());
    p.rotate(angle);
    const QRectF local(-r.width() / 2, -r.height() / 2, r.width(), r.height());
    fillShape(p, roundRect(local, 10), kPaper, 2.5);
    p.restore();
}

}  // namespace

void drawQuiz(QPainter& p) {
    QPainterPath bubble = roundRect(QRectF(62, 8, 176, 128), 44);
    bubble = bubble.united(polygon({{96, 120}, {70, 164}, {138, 128}}));
    fillShape(p, bubble, QColor(250, 250, 255), 4);
    gloss(p, bubble, 120, 0.4);
    outlinedText(p, centredText("?", boldFont(118), QPointF(150, 68)), QColor(122, 47, 184),
                 Qt::white, 3);
    QPainterPath small = ellipse(QPointF(266, 44), 32, 32);
    small = small.united(polygon({{250, 66}, {236, 92}, {268, 74}}));
    fillShape(p, small, QColor(255, 206, 40), 3.5);
    gloss(p, small, 130, 0.45);
    letter(p, "!", QPointF(267, 44), 46, QColor(200, 60, 40));
    sparkle(p, QPointF(40, 40), 13, QColor(255, 255, 255, 230));
    sparkle(p, QPointF(290, 120), 10, QColor(255, 255, 255, 220));
}

void drawScramble(QPainter& p) {
    // Tumbling tiles with motion arcs between them.
    p.save();
    p.setPen(QPen(QColor(255, 255, 255, 150), 5, Qt::SolidLine, Qt::RoundCap));
    p.setBrush(Qt::NoBrush);
    QPainterPath arc;
    arc.moveTo(40, 150);
    arc.cubicTo(90, 10, 230, 10, 292, 140);
    p.drawPath(arc);
    p.restore();
    const std::array<QString, 5> letters = {"R", "S", "C", "M", "A"};
    const std::array<QPointF, 5> at = {{{50, 112}, {106, 66}, {163, 104}, {218, 60}, {272, 104}}};
    const std::array<double, 5> tilt = {-20, 14, -6, 22, -15};
    for (int i = 0; i < 5; ++i) letterTile(p, at[i], 62, letters[i], kTileYellow, tilt[i], kInk);
}

void drawLetterDrop(QPainter& p) {
    const QColor tile(130, 205, 255);
    for (int i = 0; i < 4; ++i) {
        const QRectF slot(46 + i * 60, 112, 50, 52);
        fillShape(p, roundRect(slot, 10), QColor(70, 40, 20), 2.5);
        p.fillPath(roundRect(slot.adjusted(5, 5, -5, -30), 6), QColor(0, 0, 0, 60));
    }
    letterTile(p, QPointF(71, 136), 46, "W", tile, 0);
    // Speed streaks above the falling letters.
    for (int i = 0; i < 3; ++i) {
        line(p, QPointF(118 + i * 12, 8), QPointF(118 + i * 12, 44 - i * 6),
             QColor(255, 255, 255, 150), 4);
        line(p, QPointF(179 + i * 12, 2), QPointF(179 + i * 12, 20 - i * 4),
             QColor(255, 255, 255, 150), 4);
    }
    letterTile(p, QPointF(131, 80), 46, "O", tile, 6);
    letterTile(p, QPointF(191, 40), 46, "R", tile, -10);
    line(p, QPointF(280, 20), QPointF(280, 60), QColor(255, 255, 255, 200), 6);
    p.fillPath(polygon({{266, 58}, {294, 58}, {280, 80}}), QColor(255, 255, 255, 200));
}

void drawFlashCards(QPainter& p) {
    const std::array<double, 3> tilt = {-14, -5, 6};
    const std::array<QPointF, 3> at = {{{138, 92}, {150, 88}, {168, 84}}};
    for (int i = 0; i < 3; ++i) {
        p.save();
        p.translate(at[i]);
        p.rotate(tilt[i]);
        const QRectF card(-90, -58, 180, 116);
        fillShape(p, roundRect(card, 10), i == 2 ? Qt::white : QColor(235, 240, 250), 2.5);
        if (i == 2) {
            line(p, QPointF(-80, -36), QPointF(80, -36), QColor(230, 80, 80), 3);
            for (int k = 0; k < 3; ++k) {
                line(p, QPointF(-80, -10 + k * 24), QPointF(80, -10 + k * 24),
                     QColor(120, 170, 230, 150), 2);
            }
            outlinedText(p, centredText("Aa", boldFont(54), QPointF(0, 12)), QColor(47, 90, 200),
                         Qt::white, 3);
        }
        p.restore();
    }
    sparkle(p, QPointF(270, 30), 13, QColor(255, 255, 255, 230));
}

void drawCrossword(QPainter& p) {
    // "SMART" across the third row crosses "WORD" down the fourth column.
    const double s = 34;
    const QPointF o(36, 15);
    fillShape(p, roundRect(QRectF(o.x() - 6, o.y() - 6, 5 * s + 12, 4 * s + 12), 8),
              QColor(40, 50, 80), 2.5);
    const QString across = "SMART";
    const QString down = "WORD";
    for (int r = 0; r < 4; ++r) {
        for (int c = 0; c < 5; ++c) {
            const QRectF cell(o.x() + c * s + 1.5, o.y() + r * s + 1.5, s - 3, s - 3);
            QString ch;
            if (r == 2) ch = across[c];
            if (c == 3) ch = down[r];
            if (ch.isEmpty()) {
                p.fillRect(cell, QColor(30, 36, 60));
                continue;
            }
            p.fillRect(cell, kPaper);
            letter(p, ch, cell.center() + QPointF(0, 1), 22, kInk);
        }
    }
    // A pencil ready to fill in the rest.
    p.save();
    p.translate(258, 88);
    p.rotate(28);
    const QPainterPath body = roundRect(QRectF(-14, -70, 28, 112), 4);
    fillShape(p, body, QColor(255, 196, 40), 2.5);
    line(p, QPointF(-5, -66), QPointF(-5, 38), QColor(255, 230, 140), 3);
    fillShape(p, roundRect(QRectF(-14, -86, 28, 20), 6), QColor(240, 120, 150), 2.5);
    p.fillRect(QRectF(-14, -70, 28, 8), QColor(190, 190, 200));
    fillShape(p, polygon({{-14, 42}, {14, 42}, {0, 76}}), QColor(245, 210, 160), 2.5);
    p.fillPath(polygon({{-5, 64}, {5, 64}, {0, 76}}), kInk);
    p.restore();
}

void drawBlindTiles(QPainter& p) {
    const std::array<bool, 8> up = {true, false, true, false, false, true, false, true};
    const QString faces = "WORDGAME";
    for (int i = 0; i < 8; ++i) {
        const QPointF at(52 + (i % 4) * 72, 48 + (i / 4) * 76);
        const double tilt = ((i * 7) % 5 - 2) * 2.5;
        if (up[i]) {
            letterTile(p, at, 60, faces.mid(i, 1), kPaper, tilt, kInk);
        } else {
            letterTile(p, at, 60, "", QColor(255, 150, 40), tilt);
            outlinedText(p, centredText("?", boldFont(34), at + QPointF(0, 1)), Qt::white,
                         QColor(160, 70, 0), 2.5);
        }
    }
}

void drawWordSearch(QPainter& p) {
    const QString rows[4] = {"CATSW", "ORDLX", "WBOOK", "PENUT"};
    paper(p, QRectF(22, 10, 200, 150), -3);
    p.save();
    p.translate(122, 85);
    p.rotate(-3);
    // The found word sits in a highlighter capsule.
    p.fillPath(roundRect(QRectF(-54, 0, 144, 32), 16), QColor(120, 230, 120, 170));
    for (int r = 0; r < 4; ++r) {
        for (int c = 0; c < 5; ++c) {
            letter(p, rows[r].mid(c, 1), QPointF(-72 + c * 36, -48 + r * 32), 22, kInk);
        }
    }
    p.restore();
    // Magnifier.
    const QPointF lens(226, 74);
    p.save();
    p.setClipPath(ellipse(lens, 44, 44));
    p.fillRect(QRectF(170, 20, 120, 120), QColor(225, 245, 255));
    letter(p, "K", lens, 64, kInk);
    QRadialGradient shine(lens + QPointF(-16, -18), 50);
    shine.setColorAt(0, QColor(255, 255, 255, 160));
    shine.setColorAt(1, QColor(255, 255, 255, 0));
    p.fillRect(QRectF(170, 20, 120, 120), shine);
    p.restore();
    p.save();
    p.translate(lens);
    p.rotate(45);
    fillShape(p, roundRect(QRectF(48, -11, 66, 22), 10), QColor(150, 70, 30), 3);
    p.restore();
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QColor(60, 60, 70), 12));
    p.drawEllipse(lens, 46, 46);
    p.setPen(QPen(QColor(200, 205, 215), 6));
    p.drawEllipse(lens, 46, 46);
}

void drawWordMaze(QPainter& p) {
    constexpr int kCols = 7, kRows = 4;
    const double s = 36;
    const QPointF o(160 - kCols * s / 2, 85 - kRows * s / 2);
    bool right[kRows][kCols], down[kRows][kCols], seen[kRows][kCols] = {};
    for (int r = 0; r < kRows; ++r) {
        for (int c = 0; c < kCols; ++c) right[r][c] = down[r][c] = true;
    }
    // A fixed depth-first maze: same picture every run.
    Dice dice(20);
    std::vector<std::pair<int, int>> stack = {{0, 0}};
    seen[0][0] = true;
    while (!stack.empty()) {
        auto [r, c] = stack.back();
        std::vector<int> options;
        if (c + 1 < kCols && !seen[r][c + 1]) options.push_back(0);
        if (r + 1 < kRows && !seen[r + 1][c]) options.push_back(1);
        if (c > 0 && !seen[r][c - 1]) options.push_back(2);
        if (r > 0 && !seen[r - 1][c]) options.push_back(3);
        if (options.empty()) {
            stack.pop_back();
            continue;
        }
        switch (options[dice.below(static_cast<int>(options.size()))]) {
            case 0:
                right[r][c] = false;
                stack.push_back({r, c + 1});
                break;
            case 1:
                down[r][c] = false;
                stack.push_back({r + 1, c});
                break;
            case 2:
                right[r][c - 1] = false;
                stack.push_back({r, c - 1});
                break;
            default:
                down[r - 1][c] = false;
                stack.push_back({r - 1, c});
                break;
        }
        seen[stack.back().first][stack.back().second] = true;
    }
    fillShape(p, roundRect(QRectF(o.x() - 12, o.y() - 12, kCols * s + 24, kRows * s + 24), 14),
              QColor(30, 90, 70), 3);
    QPainterPath walls;
    auto wall = [&](double x1, double y1, double x2, double y2) {
        walls.moveTo(o + QPointF(x1 * s, y1 * s));
        walls.lineTo(o + QPointF(x2 * s, y2 * s));
    };
    wall(0, 0, kCols, 0);
    wall(0, kRows, kCols, kRows);
    wall(0, 1, 0, kRows);
    wall(kCols, 0, kCols, kRows - 1);
    for (int r = 0; r < kRows; ++r) {
        for (int c = 0; c < kCols; ++c) {
            if (right[r][c] && c + 1 < kCols) wall(c + 1, r, c + 1, r + 1);
            if (down[r][c] && r + 1 < kRows) wall(c, r + 1, c + 1, r + 1);
        }
    }
    p.strokePath(walls, QPen(QColor(10, 50, 35), 10, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.strokePath(walls, QPen(QColor(170, 240, 200), 6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    ball(p, o + QPointF(s / 2, s / 2), 12, QColor(240, 70, 60), 2);
    const QPointF goal = o + QPointF((kCols - 0.5) * s, (kRows - 0.5) * s);
    fillShape(p, starPath(goal, 17, 8, 5), QColor(255, 210, 40), 2);
}

void drawLetterToss(QPainter& p) {
    p.save();
    p.setPen(QPen(QColor(255, 255, 255, 170), 4, Qt::DashLine, Qt::RoundCap));
    QPainterPath arc;
    arc.moveTo(20, 160);
    arc.quadTo(130, -40, 240, 92);
    p.drawPath(arc);
    p.restore();
    letterTile(p, QPointF(56, 104), 44, "A", QColor(130, 220, 255), -25);
    letterTile(p, QPointF(120, 46), 44, "B", QColor(255, 230, 90), 10);
    letterTile(p, QPointF(190, 48), 44, "C", QColor(170, 240, 140), 35);
    // The basket, woven in two tones.
    letterTile(p, QPointF(250, 92), 40, "D", QColor(255, 170, 210), -12);
    const QPainterPath basket = polygon({{196, 104}, {304, 104}, {290, 164}, {210, 164}});
    fillShape(p, basket, QColor(196, 130, 60), 3);
    p.save();
    p.setClipPath(basket);
    for (int i = 0; i < 4; ++i) {
        line(p, QPointF(190, 116 + i * 14), QPointF(310, 116 + i * 14), QColor(140, 80, 30), 3);
    }
    for (int i = 0; i < 8; ++i) {
        line(p, QPointF(206 + i * 13, 104), QPointF(214 + i * 11, 166), QColor(230, 170, 100), 2);
    }
    p.restore();
    fillShape(p, roundRect(QRectF(190, 98, 120, 14), 7), QColor(170, 100, 40), 2.5);
}

void drawSpellCrush(QPainter& p) {
    const QPointF hit(140, 108);
    fillShape(p, starPath(hit, 82, 48, 12), QColor(255, 220, 60), 0);
    p.fillPath(starPath(hit, 60, 36, 12, 0.2), QColor(255, 250, 200));
    letterTile(p, hit, 80, "S", QColor(150, 220, 255), -6);
    // Cracks and flying chips.
    QPainterPath crack;
    crack.moveTo(hit + QPointF(-4, -40));
    crack.lineTo(hit + QPointF(6, -18));
    crack.lineTo(hit + QPointF(-6, -2));
    crack.lineTo(hit + QPointF(10, 18));
    crack.moveTo(hit + QPointF(6, -18));
    crack.lineTo(hit + QPointF(30, -10));
    p.strokePath(crack, QPen(kInk, 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const std::array<QPointF, 4> chips = {{{60, 50}, {56, 140}, {214, 150}, {84, 28}}};
    for (size_t i = 0; i < chips.size(); ++i) {
        p.save();
        p.translate(chips[i]);
        p.rotate(static_cast<double>(i) * 40);
        fillShape(p, polygon({{-9, -7}, {10, -4}, {4, 9}}), QColor(150, 220, 255), 2);
        p.restore();
    }
    // The mallet coming down.
    p.save();
    p.translate(228, 56);
    p.rotate(-32);
    fillShape(p, roundRect(QRectF(-9, 0, 18, 96), 8), QColor(190, 120, 60), 3);
    fillShape(p, roundRect(QRectF(-54, -34, 108, 50), 12), QColor(120, 130, 150), 3);
    fillShape(p, roundRect(QRectF(-60, -38, 16, 58), 6), QColor(90, 100, 120), 2.5);
    gloss(p, roundRect(QRectF(-54, -34, 108, 50), 12), 120, 0.5);
    p.restore();
}

void drawWordBricks(QPainter& p) {
    const QString pieces[] = {"UN", "PRE", "ING", "RE", "TION", "ED", "FUL", "DIS"};
    const QColor colours[] = {QColor(255, 214, 70), QColor(110, 200, 255), QColor(140, 225, 120),
                              QColor(255, 150, 190), QColor(200, 170, 255)};
    const double w = 92, h = 44, gap = 5, left = 16, right = 304;
    int k = 0;
    for (int r = 0; r < 3; ++r) {
        // Odd rows start and end with half bricks, as a real wall does.
        double x = left;
        const bool offset = r % 2 == 1;
        int c = 0;
        while (x < right - 1) {
            const bool half = (offset && c == 0) || x + w > right + 1;
            const double bw = half ? std::min((w - gap) / 2, right - x) : w;
            const QRectF brick(x, 16 + r * (h + gap), bw, h);
            const QColor col = colours[(k * 3 + r) % 5];
            fillShape(p, roundRect(brick, 8), col, 2.5);
            gloss(p, roundRect(brick, 8), 110, 0.45);
            if (!half) {
                letter(p, pieces[k % 8], brick.center() + QPointF(0, 1), 22, darker(col, 0.7));
                ++k;
            }
            x += bw + gap;
            ++c;
        }
    }
}

void drawHangMan(QPainter& p) {
    const QColor ink(30, 40, 80);
    // A friendly stick figure, waving.
    const QPointF head(82, 42);
    line(p, head + QPointF(0, 26), head + QPointF(0, 82), ink, 7);
    line(p, head + QPointF(0, 40), head + QPointF(-34, 14), ink, 7);
    line(p, head + QPointF(-34, 14), head + QPointF(-40, -14), ink, 7);
    line(p, head + QPointF(0, 40), head + QPointF(34, 58), ink, 7);
    line(p, head + QPointF(0, 82), head + QPointF(-24, 120), ink, 7);
    line(p, head + QPointF(0, 82), head + QPointF(24, 120), ink, 7);
    ball(p, head, 27, QColor(255, 225, 180), 3.5);
    p.fillPath(ellipse(head + QPointF(-9, -5), 3.5, 4.5), ink);
    p.fillPath(ellipse(head + QPointF(9, -5), 3.5, 4.5), ink);
    QPainterPath smile;
    smile.moveTo(head + QPointF(-12, 7));
    smile.quadTo(head + QPointF(0, 20), head + QPointF(12, 7));
    p.strokePath(smile, QPen(ink, 3.5, Qt::SolidLine, Qt::RoundCap));
    p.fillPath(ellipse(head + QPointF(-16, 6), 5, 3), QColor(255, 140, 140, 150));
    p.fillPath(ellipse(head + QPointF(16, 6), 5, 3), QColor(255, 140, 140, 150));
    // Letter blanks with two letters found.
    const QString shown[] = {"W", "", "R", ""};
    for (int i = 0; i < 4; ++i) {
        const double x = 156 + i * 42;
        line(p, QPointF(x - 14, 132), QPointF(x + 14, 132), Qt::white, 6);
        if (!shown[i].isEmpty()) {
            outlinedText(p, centredText(shown[i], boldFont(36), QPointF(x, 108)), Qt::white, ink,
                         3);
        }
    }
    fillShape(p, roundRect(QRectF(170, 18, 110, 48), 22), Qt::white, 3);
    letter(p, "Hi!", QPointF(225, 42), 28, QColor(220, 80, 60));
}

void drawSpeedType(QPainter& p) {
    // Stopwatch.
    const QPointF c(92, 94);
    fillShape(p, roundRect(QRectF(c.x() - 12, c.y() - 78, 24, 18), 5), QColor(200, 60, 60), 2.5);
    fillShape(p, roundRect(QRectF(c.x() - 6, c.y() - 64, 12, 12), 3), QColor(160, 160, 170), 2);
    ball(p, c, 62, QColor(210, 60, 60), 3);
    p.setBrush(Qt::white);
    p.setPen(QPen(QColor(120, 30, 30), 3));
    p.drawEllipse(c, 48, 48);
    for (int i = 0; i < 12; ++i) {
        const double a = i * 3.14159265 / 6;
        const QPointF dir(std::sin(a), -std::cos(a));
        line(p, c + dir * 40, c + dir * (i % 3 == 0 ? 31 : 35), kInk, i % 3 == 0 ? 4 : 2.5);
    }
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(255, 200, 60, 120));
    p.drawPie(QRectF(c.x() - 40, c.y() - 40, 80, 80), 90 * 16, -110 * 16);
    line(p, c, c + QPointF(34, -13), QColor(220, 40, 40), 4.5);
    ball(p, c, 6, QColor(60, 60, 70), 0);
    // Keys.
    const QString keys[] = {"Q", "W", "A", "S"};
    const QPointF at[] = {{196, 50}, {262, 50}, {210, 120}, {276, 120}};
    for (int i = 0; i < 4; ++i) {
        const QRectF key(at[i].x() - 27, at[i].y() - 27, 54, 54);
        fillShape(p, roundRect(key.translated(0, 6), 10), QColor(150, 160, 175), 2.5);
        fillShape(p, roundRect(key, 10), QColor(248, 250, 255), 2.5);
        letter(p, keys[i], key.center(), 26, QColor(40, 60, 110));
    }
    for (int i = 0; i < 3; ++i) {
        line(p, QPointF(160, 82 + i * 14), QPointF(176 - i * 4, 82 + i * 14),
             QColor(255, 255, 255, 170), 4);
    }
}

void drawCodeBreaker(QPainter& p) {
    const QRectF board(18, 16, 284, 140);
    fillShape(p, roundRect(board, 18), QColor(120, 70, 40), 3);
    gloss(p, roundRect(board, 18), 60, 0.4);
    const QColor pegs[2][4] = {
        {QColor(240, 60, 60), QColor(255, 210, 40), QColor(70, 200, 90), QColor(60, 140, 255)},
        {QColor(170, 90, 230), QColor(240, 60, 60), QColor(), QColor()}};
    for (int r = 0; r < 2; ++r) {
        const double y = 56 + r * 62;
        for (int i = 0; i < 4; ++i) {
            const QPointF at(60 + i * 50, y);
            p.fillPath(ellipse(at, 17, 17), QColor(60, 30, 15));
            if (pegs[r][i].isValid()) ball(p, at, 18, pegs[r][i], 2.5);
        }
        // Score pegs: black for right place, white for right colour.
        for (int k = 0; k < 4; ++k) {
            const QPointF at(256 + (k % 2) * 20, y - 10 + (k / 2) * 20);
            p.fillPath(ellipse(at, 6, 6), QColor(60, 30, 15));
            if (r == 0) ball(p, at, 7, k < 2 ? QColor(30, 30, 35) : QColor(245, 245, 245), 1.5);
        }
    }
    line(p, QPointF(236, 30), QPointF(236, 142), QColor(90, 50, 25), 3);
}

}  // namespace wm::assetgen
