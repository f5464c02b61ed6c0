// A Standard MIDI File writer (format 1) with running status, and a small note notation the
// tunes are written in.
#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <string>
#include <vector>

namespace wm::assetgen {

inline constexpr int kTicksPerQuarter = 480;

// MIDI variable-length quantity (7 bits a byte, high bit = more follows).
QByteArray encodeVlq(std::uint32_t value);

class MidiTrack {
public:
    void trackName(const std::string& name);
    void tempo(std::uint32_t tick, double bpm);
    void timeSignature(std::uint32_t tick, int numerator, int denominatorPower);
    void program(std::uint32_t tick, int channel, int program);
    void control(std::uint32_t tick, int channel, int controller, int value);
    // A note from `tick` for `length` ticks; the end is written as a note-on of velocity 0 so
    // running status can carry whole phrases.
    void note(std::uint32_t tick, std::uint32_t length, int channel, int key, int velocity);
    // Asks for the end-of-track at `tick`; it is never put before the track's last event.
    void endAt(std::uint32_t tick) { end_ = tick; }

    // The MTrk chunk: events in time order (meta, then controls, then note ends, then note
    // starts at the same tick), delta times, running status, end-of-track.
    QByteArray encode() const;

private:
    struct Event {
        std::uint32_t tick;
        int order;  // 0 meta, 1 program/control, 2 note end, 3 note start
        int sequence;
        std::vector<std::uint8_t> bytes;
    };
    void add(std::uint32_t tick, int order, std::vector<std::uint8_t> bytes);
    std::vector<Event> events_;
    std::uint32_t end_ = 0;
};

// MThd (format 1, `ticksPerQuarter`) followed by every track.
QByteArray encodeMidiFile(const std::vector<MidiTrack>& tracks,
                          int ticksPerQuarter = kTicksPerQuarter);

// One note of a written line: pitch (-1 for a rest) and length in ticks.
struct WrittenNote {
    int key;
    std::uint32_t ticks;
};

// Parses a line such as "E5q G5e F#5e rq C6h." : pitch name with sharp (#) or flat (b) and
// octave (C4 = 60), then w/h/q/e/s for whole to sixteenth, '.' for dotted. "r" is a rest;
// "|" bar lines are ignored. Returns false and sets `error` on a bad token.
bool parseLine(const QString& text, std::vector<WrittenNote>* out, QString* error);

}  // namespace wm::assetgen
