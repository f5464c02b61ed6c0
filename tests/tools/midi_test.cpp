// The MIDI writer and the tunes, read back by an independent reader that follows the file
// format (chunk lengths, delta times, running status) rather than the writer's code.
#include "midi.h"
#include "asset_gen.h"
#include "manifest.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <stdexcept>
#include <tuple>

using namespace wm::assetgen;

namespace {

// One group made from the source tree's manifest and recipes.
std::vector<AssetFile> rendered(const char* group) {
    std::vector<AssetFile> out;
    QString error;
    EXPECT_TRUE(renderGroup(sourceAssetsDir(), group, &out, &error)) << error.toStdString();
    return out;
}

struct Event {
    std::uint32_t tick = 0;
    std::uint8_t status = 0;  // 0xFF for meta
    std::uint8_t meta = 0;
    std::vector<std::uint8_t> data;
};

struct Track {
    std::vector<Event> events;
};

struct MidiFile {
    int format = -1;
    int division = 0;
    std::vector<Track> tracks;
    std::string error;
};

class Reader {
public:
    explicit Reader(const QByteArray& b) : b_(b) {}
    bool has(int n) const { return pos_ + n <= b_.size(); }
    std::uint8_t u8() { return static_cast<std::uint8_t>(b_[pos_++]); }
    std::uint32_t be(int n) {
        std::uint32_t v = 0;
        for (int i = 0; i < n; ++i) v = (v << 8) | u8();
        return v;
    }
    std::uint32_t vlq() {
        std::uint32_t v = 0;
        for (int i = 0; i < 4; ++i) {
            const std::uint8_t c = u8();
            v = (v << 7) | (c & 0x7F);
            if (!(c & 0x80)) return v;
        }
        throw std::runtime_error("VLQ longer than four bytes");
    }
    int pos_ = 0;

private:
    const QByteArray& b_;
};

MidiFile parse(const QByteArray& bytes) {
    MidiFile f;
    Reader r(bytes);
    try {
        if (bytes.left(4) != "MThd") throw std::runtime_error("no MThd");
        r.pos_ = 4;
        if (r.be(4) != 6) throw std::runtime_error("header length");
        f.format = static_cast<int>(r.be(2));
        const std::uint32_t count = r.be(2);
        f.division = static_cast<int>(r.be(2));
        for (std::uint32_t t = 0; t < count; ++t) {
            if (bytes.mid(r.pos_, 4) != "MTrk") throw std::runtime_error("no MTrk");
            r.pos_ += 4;
            const std::uint32_t length = r.be(4);
            const int end = r.pos_ + static_cast<int>(length);
            if (end > bytes.size()) throw std::runtime_error("track runs past the file");
            Track track;
            std::uint32_t tick = 0;
            std::uint8_t running = 0;
            bool ended = false;
            while (r.pos_ < end) {
                if (ended) throw std::runtime_error("bytes after end-of-track");
                tick += r.vlq();
                Event e;
                e.tick = tick;
                std::uint8_t first = r.u8();
                if (first == 0xFF) {
                    e.status = 0xFF;
                    e.meta = r.u8();
                    const std::uint32_t n = r.vlq();
                    for (std::uint32_t i = 0; i < n; ++i) e.data.push_back(r.u8());
                    running = 0;
                    ended = e.meta == 0x2F;
                } else {
                    if (first & 0x80) {
                        running = first;
                        first = r.u8();
                    } else if (running == 0) {
                        throw std::runtime_error("data byte without a status");
                    }
                    e.status = running;
                    e.data.push_back(first);
                    const int kind = running & 0xF0;
                    if (kind != 0xC0 && kind != 0xD0) e.data.push_back(r.u8());
                }
                track.events.push_back(e);
            }
            if (r.pos_ != end) throw std::runtime_error("track length does not match");
            if (!ended) throw std::runtime_error("no end-of-track");
            f.tracks.push_back(track);
        }
        if (r.pos_ != bytes.size()) throw std::runtime_error("bytes after the last track");
    } catch (const std::exception& e) {
        f.error = e.what();
    }
    return f;
}

QByteArray bytesOf(std::initializer_list<int> v) {
    QByteArray b;
    for (int x : v) b.append(static_cast<char>(x));
    return b;
}

}  // namespace

TEST(MidiWriter, VariableLengthQuantitiesAtTheirBoundaries) {
    EXPECT_EQ(encodeVlq(0), bytesOf({0x00}));
    EXPECT_EQ(encodeVlq(0x7F), bytesOf({0x7F}));
    EXPECT_EQ(encodeVlq(0x80), bytesOf({0x81, 0x00}));
    EXPECT_EQ(encodeVlq(0x3FFF), bytesOf({0xFF, 0x7F}));
    EXPECT_EQ(encodeVlq(0x4000), bytesOf({0x81, 0x80, 0x00}));
    EXPECT_EQ(encodeVlq(0x0FFFFFFF), bytesOf({0xFF, 0xFF, 0xFF, 0x7F}));
}

TEST(MidiWriter, RunningStatusCarriesNotesAndIsRestatedAfterMeta) {
    MidiTrack t;
    t.note(0, 240, 0, 60, 100);
    t.note(240, 240, 0, 64, 90);
    t.tempo(480, 100);  // meta in the middle cancels running status
    t.note(480, 240, 0, 67, 80);
    const QByteArray chunk = t.encode();
    const QByteArray file = encodeMidiFile({t});
    const MidiFile f = parse(file);
    ASSERT_EQ(f.error, "");
    ASSERT_EQ(f.tracks.size(), 1u);
    // One status before the tempo, one after: everything else rides on running status.
    EXPECT_EQ(chunk.count(static_cast<char>(0x90)), 2);
    std::vector<std::tuple<std::uint32_t, int, int>> notes;
    for (const Event& e : f.tracks[0].events) {
        if (e.status == 0x90) notes.emplace_back(e.tick, e.data[0], e.data[1]);
    }
    const std::vector<std::tuple<std::uint32_t, int, int>> want = {
        {0, 60, 100}, {240, 60, 0}, {240, 64, 90}, {480, 64, 0}, {480, 67, 80}, {720, 67, 0}};
    EXPECT_EQ(notes, want);
}

TEST(MidiWriter, ChunkLengthsAndHeaderOfAFormatOneFile) {
    MidiTrack conductor;
    conductor.trackName("Name");
    conductor.tempo(0, 120);
    MidiTrack part;
    part.program(0, 3, 56);
    part.control(0, 3, 7, 100);
    part.note(0, 480, 3, 72, 100);
    const MidiFile f = parse(encodeMidiFile({conductor, part}, 480));
    ASSERT_EQ(f.error, "");
    EXPECT_EQ(f.format, 1);
    EXPECT_EQ(f.division, 480);
    ASSERT_EQ(f.tracks.size(), 2u);
    const Event& tempo = f.tracks[0].events[1];
    EXPECT_EQ(tempo.meta, 0x51);
    EXPECT_EQ(tempo.data, (std::vector<std::uint8_t>{0x07, 0xA1, 0x20}));  // 500000 us
    EXPECT_EQ(f.tracks[1].events[0].status, 0xC3);
}

TEST(MidiWriter, EndOfTrackNeverComesBeforeTheLastNote) {
    MidiTrack t;
    t.note(0, 960, 0, 60, 100);
    t.endAt(480);  // asked too early: a negative delta would wrap into hours of silence
    const MidiFile f = parse(encodeMidiFile({t}));
    ASSERT_EQ(f.error, "");
    EXPECT_EQ(f.tracks[0].events.back().meta, 0x2F);
    EXPECT_EQ(f.tracks[0].events.back().tick, 960u);
}

TEST(MidiWriter, ParsesTheNoteNotation) {
    std::vector<WrittenNote> notes;
    QString error;
    ASSERT_TRUE(parseLine("C4q | F#5e. Bb3h rw A0s", &notes, &error)) << error.toStdString();
    ASSERT_EQ(notes.size(), 5u);
    EXPECT_EQ(notes[0].key, 60);
    EXPECT_EQ(notes[0].ticks, 480u);
    EXPECT_EQ(notes[1].key, 78);
    EXPECT_EQ(notes[1].ticks, 360u);
    EXPECT_EQ(notes[2].key, 58);
    EXPECT_EQ(notes[2].ticks, 960u);
    EXPECT_EQ(notes[3].key, -1);
    EXPECT_EQ(notes[3].ticks, 1920u);
    EXPECT_EQ(notes[4].key, 21);
    EXPECT_EQ(notes[4].ticks, 120u);
    for (const char* bad : {"H4q", "C4", "C4x", "C#q", "C4q..", "r", "G10q"}) {
        std::vector<WrittenNote> out;
        EXPECT_FALSE(parseLine(bad, &out, &error)) << bad;
    }
}

TEST(Tunes, EveryTuneIsAWellFormedLoopableSong) {
    const std::map<QString, std::pair<double, double>> seconds = {{"wmtheme", {30, 40}},
                                                                  {"bgm-happy", {30, 60}},
                                                                  {"bgm-action", {30, 60}},
                                                                  {"bgm-calm", {30, 60}}};
    const std::vector<AssetFile> tunes = rendered("tunes");
    ASSERT_GE(tunes.size(), seconds.size());
    for (const AssetFile& tune : tunes) {
        const QString name = tune.path.mid(7).chopped(4);
        SCOPED_TRACE(name.toStdString());
        const auto bounds = seconds.count(name) ? seconds.at(name) : std::make_pair(12.0, 120.0);
        const MidiFile f = parse(tune.bytes);
        ASSERT_EQ(f.error, "");
        EXPECT_EQ(f.format, 1);
        ASSERT_GE(f.tracks.size(), 4u);

        double usPerQuarter = 0;
        std::set<int> programmed, sounding;
        std::map<std::pair<int, int>, int> held;
        std::set<std::uint32_t> ends;
        std::uint32_t lastNoteEnd = 0;
        for (const Track& t : f.tracks) {
            for (const Event& e : t.events) {
                const int channel = e.status & 0x0F;
                if (e.status == 0xFF && e.meta == 0x51) {
                    usPerQuarter = (e.data[0] << 16) | (e.data[1] << 8) | e.data[2];
                } else if (e.status == 0xFF && e.meta == 0x2F) {
                    ends.insert(e.tick);
                } else if ((e.status & 0xF0) == 0xC0) {
                    programmed.insert(channel);
                } else if ((e.status & 0xF0) == 0x90 || (e.status & 0xF0) == 0x80) {
                    const bool on = (e.status & 0xF0) == 0x90 && e.data[1] > 0;
                    int& count = held[{channel, e.data[0]}];
                    if (on) {
                        ++count;
                        sounding.insert(channel);
                    } else {
                        EXPECT_GT(count, 0) << "note off without a note on";
                        --count;
                        lastNoteEnd = std::max(lastNoteEnd, e.tick);
                    }
                }
            }
        }
        for (const auto& [key, count] : held) EXPECT_EQ(count, 0) << "hanging note " << key.second;
        ASSERT_GT(usPerQuarter, 0) << "no tempo";
        // Every track ends on the same bar line, after the last note: the loop point.
        ASSERT_EQ(ends.size(), 1u);
        const std::uint32_t end = *ends.begin();
        EXPECT_LE(lastNoteEnd, end);
        EXPECT_EQ(end % (4 * f.division), 0u);
        const double length = end / static_cast<double>(f.division) * usPerQuarter / 1e6;
        EXPECT_GE(length, bounds.first);
        EXPECT_LE(length, bounds.second);
        // Melody, bass and chords each have their own General MIDI sound; drums on channel 10.
        EXPECT_TRUE(sounding.count(9));
        for (int channel : sounding) {
            if (channel != 9) {
                EXPECT_TRUE(programmed.count(channel)) << "channel " << channel;
            }
        }
        EXPECT_GE(sounding.size(), 4u);
    }
}

