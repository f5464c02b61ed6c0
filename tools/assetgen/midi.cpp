#include "midi.h"

#include <QStringList>

#include <algorithm>
#include <cmath>

namespace wm::assetgen {

namespace {

void put32(QByteArray& out, std::uint32_t v) {
    for (int shift = 24; shift >= 0; shift -= 8) out.append(static_cast<char>((v >> shift) & 0xFF));
}

void put16(QByteArray& out, std::uint16_t v) {
    out.append(static_cast<char>(v >> 8));
    out.append(static_cast<char>(v & 0xFF));
}

std::uint8_t byte7(int v) {
    return static_cast<std::uint8_t>(std::clamp(v, 0, 127));
}
std::uint8_t channelNibble(int channel) {
    return static_cast<std::uint8_t>(channel & 0x0F);
}

}  // namespace

QByteArray encodeVlq(std::uint32_t value) {
    value &= 0x0FFFFFFF;  // the format's limit: four bytes
    std::uint8_t bytes[4];
    int n = 0;
    do {
        bytes[n++] = static_cast<std::uint8_t>(value & 0x7F);
        value >>= 7;
    } while (value != 0);
    QByteArray out;
    for (int i = n - 1; i >= 0; --i) {
        out.append(static_cast<char>(bytes[i] | (i > 0 ? 0x80 : 0)));
    }
    return out;
}

void MidiTrack::add(std::uint32_t tick, int order, std::vector<std::uint8_t> bytes) {
    events_.push_back({tick, order, static_cast<int>(events_.size()), std::move(bytes)});
    end_ = std::max(end_, tick);
}

void MidiTrack::trackName(const std::string& name) {
    std::vector<std::uint8_t> b = {0xFF, 0x03};
    const QByteArray len = encodeVlq(static_cast<std::uint32_t>(name.size()));
    b.insert(b.end(), len.begin(), len.end());
    b.insert(b.end(), name.begin(), name.end());
    add(0, 0, std::move(b));
}

void MidiTrack::tempo(std::uint32_t tick, double bpm) {
    const auto us = static_cast<std::uint32_t>(std::lround(60000000.0 / bpm));
    add(tick, 0,
        {0xFF, 0x51, 0x03, static_cast<std::uint8_t>(us >> 16),
         static_cast<std::uint8_t>((us >> 8) & 0xFF), static_cast<std::uint8_t>(us & 0xFF)});
}

void MidiTrack::timeSignature(std::uint32_t tick, int numerator, int denominatorPower) {
    add(tick, 0,
        {0xFF, 0x58, 0x04, static_cast<std::uint8_t>(numerator),
         static_cast<std::uint8_t>(denominatorPower), 24, 8});
}

void MidiTrack::program(std::uint32_t tick, int channel, int program) {
    add(tick, 1, {static_cast<std::uint8_t>(0xC0 | channelNibble(channel)), byte7(program)});
}

void MidiTrack::control(std::uint32_t tick, int channel, int controller, int value) {
    add(tick, 1,
        {static_cast<std::uint8_t>(0xB0 | channelNibble(channel)), byte7(controller),
         byte7(value)});
}

void MidiTrack::note(std::uint32_t tick, std::uint32_t length, int channel, int key, int velocity) {
    const auto status = static_cast<std::uint8_t>(0x90 | channelNibble(channel));
    add(tick, 3, {status, byte7(key), static_cast<std::uint8_t>(std::clamp(velocity, 1, 127))});
    add(tick + length, 2, {status, byte7(key), 0});
}

QByteArray MidiTrack::encode() const {
    std::vector<Event> sorted = events_;
    std::sort(sorted.begin(), sorted.end(), [](const Event& a, const Event& b) {
        if (a.tick != b.tick) return a.tick < b.tick;
        if (a.order != b.order) return a.order < b.order;
        return a.sequence < b.sequence;
    });
    QByteArray body;
    std::uint32_t now = 0;
    std::uint8_t running = 0;
    for (const Event& e : sorted) {
        body.append(encodeVlq(e.tick - now));
        now = e.tick;
        const std::uint8_t status = e.bytes.front();
        size_t from = 0;
        if (status >= 0xF0) {
            running = 0;  // meta and system events cancel running status
        } else if (status == running) {
            from = 1;
        } else {
            running = status;
        }
        for (size_t i = from; i < e.bytes.size(); ++i) body.append(static_cast<char>(e.bytes[i]));
    }
    body.append(encodeVlq(std::max(end_, now) - now));
    body.append("\xFF\x2F\x00", 3);
    QByteArray chunk("MTrk", 4);
    put32(chunk, static_cast<std::uint32_t>(body.size()));
    chunk.append(body);
    return chunk;
}

QByteArray encodeMidiFile(const std::vector<MidiTrack>& tracks, int ticksPerQuarter) {
    QByteArray out("MThd", 4);
    put32(out, 6);
    put16(out, 1);
    put16(out, static_cast<std::uint16_t>(tracks.size()));
    put16(out, static_cast<std::uint16_t>(ticksPerQuarter));
    for (const MidiTrack& t : tracks) out.append(t.encode());
    return out;
}

bool parseLine(const QString& text, std::vector<WrittenNote>* out, QString* error) {
    static const int kSteps[7] = {9, 11, 0, 2, 4, 5, 7};  // A B C D E F G
    const QStringList tokens = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString& token : tokens) {
        if (token == QLatin1String("|")) continue;
        int i = 0;
        int key = -1;
        const QChar head = token[0].toUpper();
        if (head == QLatin1Char('R')) {
            i = 1;
        } else if (head >= QLatin1Char('A') && head <= QLatin1Char('G')) {
            key = kSteps[head.unicode() - 'A'];
            i = 1;
            if (i < token.size() && token[i] == QLatin1Char('#')) {
                ++key;
                ++i;
            } else if (i < token.size() && token[i] == QLatin1Char('b')) {
                --key;
                ++i;
            }
            int octave = 0;
            const int digits = i;
            while (i < token.size() && token[i].isDigit())
                octave = octave * 10 + token[i++].digitValue();
            if (i == digits) {
                if (error) *error = QStringLiteral("no octave in \"%1\"").arg(token);
                return false;
            }
            key += (octave + 1) * 12;
        } else {
            if (error) *error = QStringLiteral("bad pitch in \"%1\"").arg(token);
            return false;
        }
        if (i >= token.size()) {
            if (error) *error = QStringLiteral("no length in \"%1\"").arg(token);
            return false;
        }
        std::uint32_t ticks = 0;
        switch (token[i].unicode()) {
            case 'w':
                ticks = kTicksPerQuarter * 4;
                break;
            case 'h':
                ticks = kTicksPerQuarter * 2;
                break;
            case 'q':
                ticks = kTicksPerQuarter;
                break;
            case 'e':
                ticks = kTicksPerQuarter / 2;
                break;
            case 's':
                ticks = kTicksPerQuarter / 4;
                break;
            default:
                if (error) *error = QStringLiteral("bad length in \"%1\"").arg(token);
                return false;
        }
        ++i;
        if (i < token.size() && token[i] == QLatin1Char('.')) {
            ticks += ticks / 2;
            ++i;
        }
        if (i != token.size() || key > 127) {
            if (error) *error = QStringLiteral("bad token \"%1\"").arg(token);
            return false;
        }
        out->push_back({key, ticks});
    }
    return true;
}

}  // namespace wm::assetgen
