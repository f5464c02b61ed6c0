#include "games/action/asteroid_zap/asteroid_zap_rules.h"

#include <algorithm>

#include "core/strings.h"

namespace wm::asteroid {

int chooseWord(SharedState& s, Rng& rng) {
    rng.Randomize();
    for (int n = 0; n < kMaxWordDraws; ++n) {
        const int k = int(Int(rng.Rnd() * s.WordCount + 1));
        if (k < 1 || k >= int(s.Words.size())) continue;
        if (Len(s.Words[k]) >= 15) continue;
        s.TheWord = s.Words[k];
        s.TheMeaning = k < int(s.Meanings.size()) ? s.Meanings[k] : std::string();
        return k;
    }
    return 0;
}

std::string buildRow(const std::string& word, Rng& rng) {
    std::string row = UCase(Trim(word));
    // Filler goes in anywhere; the word's letters keep their order among it.
    while (Len(row) < kLetters) {
        const std::string letter = Chr(int(Int(rng.Rnd() * 26 + 1)) + 64);
        const int p = int(Int(rng.Rnd() * Len(row)));
        row.insert(std::size_t(p), letter);
    }
    return row;
}

void setup(Round& r, const Geometry& g, const std::string& theWord, Rng& rng) {
    r = Round{};
    r.g = g;
    r.shipX = (g.width - g.shipW) / 2;
    r.word = UCase(Trim(theWord));
    const std::string row = buildRow(theWord, rng);
    for (int i = 0; i < kLetters; ++i) {
        Rock& rock = r.rocks[i];
        rock.letter = i < int(row.size()) ? row[i] : ' ';
        rock.left = g.boxLeft(i);
        rock.bottom = g.rowTop() + g.rock;
    }
}

int columnAt(const Geometry& g, int x) {
    if (x < g.boxLeft(0) + g.boxWidth()) return 0;
    if (x > g.boxLeft(kLetters - 1)) return kLetters - 1;
    return std::clamp((x - g.boxLeft(0)) / g.boxWidth(), 0, kLetters - 1);
}

namespace {
void scatter(Round& r, Blast& b, Rng& rng) {
    const int cx = r.shipX + r.g.shipW / 2, cy = r.g.shipTop() + r.g.shipH / 2;
    b.x = cx + int(Int(rng.Rnd() * 2000)) - 1000;
    b.y = cy + int(Int(rng.Rnd() * 2000)) - 1000;
}
}  // namespace

bool hitLetter(Round& r, int k, Rng& rng) {
    r.rocks[k].shown = false;
    std::string rest;
    for (const Rock& rock : r.rocks)
        if (rock.shown) rest += rock.letter;
    // Walk the remainder against the word; what does not match is filler still standing.
    bool deleted = false;
    std::size_t i = 0, j = 0;
    while (i < rest.size()) {
        if (j < r.word.size() && rest[i] == r.word[j]) {
            ++i;
            ++j;
        } else {
            rest.erase(i, 1);
            deleted = true;
        }
    }
    if (rest == r.word) {
        r.rocks[k].exploding = true;
        r.rocks[k].frame = 13;
        if (!deleted) r.allCleared = true;
        return true;
    }
    // A letter of the word is gone: everything left blows up around the ship.
    for (Rock& rock : r.rocks) {
        if (!rock.alive) continue;
        Blast b;
        b.frame = 13 + int(Int(rng.Rnd() * 6));
        scatter(r, b, rng);
        r.blasts.push_back(b);
    }
    r.wrongShot = true;
    return false;
}

TickEvents tick(Round& r, int difficulty, Rng& rng) {
    TickEvents e;
    const Geometry& g = r.g;
    ++r.ticks;
    for (Rock& rock : r.rocks) {
        if (rock.alive && !rock.exploding) {
            rock.bottom += difficulty;
            if (rock.bottom + g.shipH >= g.shipTop()) {
                r.over = true;
                r.ending = e.ending = Ending::ShipDestroyed;
                for (int n = 0; n < 8; ++n) {
                    Blast b;
                    b.frame = 13 + n % 8;
                    scatter(r, b, rng);
                    r.blasts.push_back(b);
                }
                for (Shot& s : r.shots) s.flying = false;
                return e;
            }
        } else if (rock.exploding) {
            if (++rock.frame > 20) {
                rock.alive = rock.exploding = false;
                rock.shown = false;
            }
        }
    }
    if (r.wrongShot) {
        for (Shot& s : r.shots) s.flying = false;
        r.over = true;
        r.ending = e.ending = Ending::WrongLetter;
        return e;
    }
    if (r.ticks % 10 == 0) r.rockPicture = r.rockPicture == 7 ? 4 : r.rockPicture + 1;
    if (r.fireWanted) {
        for (Shot& s : r.shots) {
            if (s.flying) continue;
            const int centre = r.shipX + g.shipW / 2;
            s = Shot{true, centre / kTwips, g.shipTop() / kTwips, columnAt(g, centre), 0};
            e.shotFired = true;
            r.fireWanted = false;
            break;
        }
    }
    for (Shot& s : r.shots) {
        if (!s.flying) continue;
        s.y -= 10;
        s.toggle ^= 1;
        Rock& target = r.rocks[s.column];
        // A letter stays alive while it explodes: a shot into the blast is absorbed, and the
        // blast starts again.
        if (target.alive && s.y <= target.bottom / kTwips) {
            s.flying = false;
            e.hit = s.column;
            const bool fine = hitLetter(r, s.column, rng);
            // The booms take turns on two players.
            e.booms.push_back(fine ? r.boomVoice : 2);
            if (fine) r.boomVoice ^= 1;
        } else if (s.y < -20) {
            s.flying = false;
        }
    }
    if (r.allCleared) {
        r.over = true;
        r.ending = e.ending = Ending::Won;
    }
    return e;
}

void moveShip(Round& r) {
    const Geometry& g = r.g;
    if (r.leftHeld) r.shipX = std::max(0, r.shipX - 50);
    // The ship keeps under the row: its right side stops at the last letter's right edge.
    if (r.rightHeld)
        r.shipX = std::min(g.boxLeft(kLetters - 1) + g.boxWidth() - g.shipW, r.shipX + 50);
}

void blastTick(Round& r, Rng& rng) {
    for (Blast& b : r.blasts) {
        if (++b.frame > 20) {
            b.frame = 13;
            scatter(r, b, rng);
        }
    }
}

double winScore(const Round& r, int difficulty, bool definitionShown) {
    double score = Len(r.word) * 500.0 * difficulty;
    if (!definitionShown) score *= 10;
    int top = r.g.rowTop();
    for (const Rock& rock : r.rocks)
        if (rock.shown) top = rock.bottom - r.g.rock;
    // The less the wall sank, the more is kept.
    return score - double(CLng(top - 0.3 * r.g.height));
}

std::string wonText(double score) {
    return "Great job! You have cleared the path to safety! Your score this round is " +
           NumText(score) + "!";
}

}  // namespace wm::asteroid
