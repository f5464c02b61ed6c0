// MIDI through FluidSynth: offline rendering, the alias on bad files, the background helper.
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>
#include <cmath>

#include "core/shared_state.h"
#include "platform/music.h"
#include "platform/services.h"

using namespace wm;

namespace {

constexpr int kRate = 44100;

// A format-0 MIDI file: piano, C E G C, a crotchet each at 120 bpm (two seconds in all).
QByteArray arpeggio() {
    QByteArray track;
    auto add = [&track](std::initializer_list<int> bytes) {
        for (int b : bytes) track += char(b);
    };
    add({0x00, 0xC0, 0x00});  // program 0
    for (int note : {60, 64, 67, 72}) {
        add({0x00, 0x90, note, 100});
        add({0x83, 0x60, 0x80, note, 0});  // 480 ticks later, off
    }
    add({0x00, 0xFF, 0x2F, 0x00});
    QByteArray file("MThd");
    file += QByteArray::fromHex(
        "00000006"
        "0000"
        "0001"
        "01e0");
    file += "MTrk";
    const quint32 n = quint32(track.size());
    file += char(n >> 24);
    file += char(n >> 16);
    file += char(n >> 8);
    file += char(n);
    return file + track;
}

QString writeTemp(const QTemporaryDir& dir, const QString& name, const QByteArray& bytes) {
    QFile f(dir.filePath(name));
    if (!f.open(QIODevice::WriteOnly)) return {};
    f.write(bytes);
    return f.fileName();
}

struct Level {
    double rms = 0;
    int peak = 0;
};

Level levelOf(const QByteArray& pcm, double from, double to) {
    const auto* s = reinterpret_cast<const qint16*>(pcm.constData());
    const qsizetype first = qsizetype(from * kRate) * 2, last = qsizetype(to * kRate) * 2;
    double sum = 0;
    Level level;
    for (qsizetype i = first; i < last && i < pcm.size() / 2; ++i) {
        sum += double(s[i]) * s[i];
        level.peak = std::max(level.peak, std::abs(int(s[i])));
    }
    level.rms = std::sqrt(sum / double(std::max<qsizetype>(1, last - first)));
    return level;
}

}  // namespace

class PlatformMusicTest : public QObject {
    Q_OBJECT
private slots:
    void init() {
        Shared() = SharedState{};
        services() = Services{};
    }

    void rendersAudibleLoopingTune() {
        if (DefaultSoundFont().isEmpty()) QSKIP("no General MIDI sound font on this machine");
        QTemporaryDir dir;
        const QString midi = writeTemp(dir, QStringLiteral("tune.mid"), arpeggio());
        const QByteArray pcm = RenderMidi(midi, 5.0);
        QCOMPARE(pcm.size(), qsizetype(5 * kRate * 4));

        const Level tune = levelOf(pcm, 0.05, 2.0);
        QVERIFY(tune.rms > 300);
        QVERIFY(tune.peak < 32000);  // a modest gain: no clipping on a simple tune
        // Background music goes round again: the file ends at two seconds.
        const Level again = levelOf(pcm, 4.1, 4.9);
        QVERIFY(again.rms > 300);
        // The same file renders the same samples: nothing depends on the wall clock.
        QCOMPARE(RenderMidi(midi, 1.0), pcm.left(kRate * 4));
    }

};

QTEST_MAIN(PlatformMusicTest)
#include "platform_music_test.moc"
