// The drawn emblem of each game button. Every emblem paints inside a 320x170 box whose origin
// is the painter's origin; the button frame places and shadows it.
#pragma once

#include <QPainter>

namespace wm::assetgen {

inline constexpr double kEmblemWidth = 320;
inline constexpr double kEmblemHeight = 170;

using Emblem = void (*)(QPainter&);

// The emblem of game `index` (0-based, catalogue order); nullptr out of range.
Emblem emblemFor(int index);

// Word and puzzle games.
void drawQuiz(QPainter& p);
void drawScramble(QPainter& p);
void drawLetterDrop(QPainter& p);
void drawFlashCards(QPainter& p);
void drawCrossword(QPainter& p);
void drawBlindTiles(QPainter& p);
void drawWordSearch(QPainter& p);
void drawWordMaze(QPainter& p);
void drawLetterToss(QPainter& p);
void drawSpellCrush(QPainter& p);
void drawWordBricks(QPainter& p);
void drawHangMan(QPainter& p);
void drawSpeedType(QPainter& p);
void drawCodeBreaker(QPainter& p);

// Show, board and gadget games.
void drawWheelOfMoney(QPainter& p);
void drawConcentration(QPainter& p);
void drawSlotMachine(QPainter& p);
void drawSafeCracker(QPainter& p);
void drawTicTacToe(QPainter& p);
void drawPachinko(QPainter& p);
void drawPrincess(QPainter& p);
void drawMiniGolf(QPainter& p);
void drawBasketball(QPainter& p);
void drawShortCircuit(QPainter& p);
void drawBombSquad(QPainter& p);
void drawBombSquad2(QPainter& p);
void drawJailbreak(QPainter& p);
void drawFreezeIt(QPainter& p);

// Action games.
void drawFlyingCow(QPainter& p);
void drawWordZap(QPainter& p);
void drawBreakThru(QPainter& p);
void drawTowerAssault(QPainter& p);
void drawBugSpray(QPainter& p);
void drawCannonShot(QPainter& p);
void drawAsteroidZap(QPainter& p);
void drawBridgeOut(QPainter& p);
void drawCrunchMan(QPainter& p);
void drawSpiderwebs(QPainter& p);
void drawToadRace(QPainter& p);
void drawHangGlider(QPainter& p);
void drawSlingshot(QPainter& p);
void drawFroggy(QPainter& p);

}  // namespace wm::assetgen
