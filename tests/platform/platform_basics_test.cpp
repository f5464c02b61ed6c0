// Text conversion, assets, sound effects and their voices, screen scaling and type that fits,
// MIDI rendered offline, held keys and the pointer's counter, and sprite sheets.
#include <QApplication>
#include <QCursor>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>
#include <cmath>

#include "core/shared_state.h"
#include "platform/key_state.h"
#include "platform/music.h"
#include "platform/pointer.h"
#include "platform/scene_kit.h"
#include "platform/screen_metrics.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "platform/sprite_sheet.h"
#include "platform/text.h"
#include "platform/text_fit.h"

using namespace wm;

namespace {

QString writeFile(const QString& path, const QByteArray& bytes) {
    QFile f(path);
    if (f.open(QIODevice::WriteOnly)) f.write(bytes);
    return path;
}

QByteArray le32(quint32 v) {
    QByteArray b(4, '\0');
    for (int i = 0; i < 4; ++i) b[i] = char((v >> (8 * i)) & 0xFF);
    return b;
}

// A short, correct 8-bit mono WAV.
QByteArray wavBytes(int samples) {
    QByteArray fmt =
        QByteArray("fmt ") + le32(16) + QByteArray::fromHex("01000100401f0000401f000001000800");
    QByteArray data = QByteArray("data") + le32(quint32(samples)) + QByteArray(samples, '\x80');
    if (samples & 1) data += '\0';
    return QByteArray("RIFF") + le32(quint32(4 + fmt.size() + data.size())) + "WAVE" + fmt + data;
}

// A format-0 MIDI file: piano, C E G C, a crotchet each at 120 bpm (two seconds in all).
QByteArray arpeggio() {
    QByteArray track;
    auto add = [&track](std::initializer_list<int> bytes) {
        for (int b : bytes) track += char(b);
    };
    add({0x00, 0xC0, 0x00});  // program 0
    for (int note : {60, 64, 67, 72}) add({0x00, 0x90, note, 100, 0x83, 0x60, 0x80, note, 0});
    add({0x00, 0xFF, 0x2F, 0x00});
    QByteArray file = "MThd" + QByteArray::fromHex("000000060000000101e0") + "MTrk";
    for (int shift : {24, 16, 8, 0}) file += char(quint32(track.size()) >> shift);
    return file + track;
}

constexpr int kRate = 44100;

// The root mean square of the stereo samples between two times, and the loudest one.
std::pair<double, int> levelOf(const QByteArray& pcm, double from, double to) {
    const auto* s = reinterpret_cast<const qint16*>(pcm.constData());
    const qsizetype first = qsizetype(from * kRate) * 2, last = qsizetype(to * kRate) * 2;
    double sum = 0;
    int peak = 0;
    for (qsizetype i = first; i < last && i < pcm.size() / 2; ++i) {
        sum += double(s[i]) * s[i];
        peak = std::max(peak, std::abs(int(s[i])));
    }
    return {std::sqrt(sum / double(std::max<qsizetype>(1, last - first))), peak};
}

void key(QWidget* to, QEvent::Type type, int k, bool repeat = false) {
    QKeyEvent event(type, k, Qt::NoModifier, QString(), repeat);
    QApplication::sendEvent(to, &event);
}

bool cursorBlank() {
    const QCursor* c = QGuiApplication::overrideCursor();
    return c && c->shape() == Qt::BlankCursor;
}

}  // namespace

class PlatformBasicsTest : public QObject {
    Q_OBJECT
private slots:
    void init() {
        Shared() = SharedState{};
        services() = Services{};
        ScreenMetrics::overrideScreenSize({});
    }

    void windowsTextAndAssetPaths() {
        // The upper half past 0xA0 is Latin-1: accented letters keep their code points.
        for (int b = 160; b <= 255; ++b) QCOMPARE(toQ(std::string(1, char(b))), QString(QChar(b)));
        QCOMPARE(toQ("\xBFQu\xE9?"), QString::fromUtf8("¿Qué?"));
        QCOMPARE(toQ("\x80"), QString(QChar(0x20AC)));  // euro sign, not a C1 control
        QCOMPARE(toQ("\x9F"), QString(QChar(0x0178)));
        QCOMPARE(fromQ(QString::fromUtf8("€ “quoted” – Ÿ")),
                 std::string("\x80 \x93quoted\x94 \x96 \x9F"));
        // Outside the code page: one "?" per character, astral ones included.
        QCOMPARE(fromQ(QString::fromUtf8("Жaβ😀")), std::string("?a??"));
        // A real SUB byte survives next to a replaced character.
        QCOMPARE(fromQ(QString::fromUtf8("a\x1A") + QChar(0x0416)), std::string("a\x1A?"));
        QVERIFY(fromQ(QString()).empty() && toQ("").isEmpty());
        // appFile and findAsset.
        QTemporaryDir dir;
        Shared().AppPath = dir.path().toStdString();
        for (const char* asked : {"sounds/a.wav", "\\sounds\\a.wav"})
            QCOMPARE(appFile(asked), dir.path() + "/sounds/a.wav");
        QDir(dir.path()).mkpath(QStringLiteral("images"));
        for (const char* name : {"wm-title.png", "board.jpg", "Flying Cow.jpg", "notes.txt"})
            writeFile(dir.filePath("images/") + name, "x");

        QCOMPARE(findAsset("images/board.jpg"), dir.filePath("images/board.jpg"));
        QCOMPARE(findAsset("images/wm-title.gif"), dir.filePath("images/wm-title.png"));
        QCOMPARE(findAsset("images/wm-title.wmf"), dir.filePath("images/wm-title.png"));
        QCOMPARE(findAsset("\\images\\board.bmp"), dir.filePath("images/board.jpg"));
        QCOMPARE(findAsset("images/flying cow.JPG"), dir.filePath("images/Flying Cow.jpg"));
        QCOMPARE(findAsset("images/FLYING COW.gif"), dir.filePath("images/Flying Cow.jpg"));
        // Same stem, not a picture; no such file; no such folder.
        QVERIFY(findAsset("images/notes.gif").isEmpty() &&
                findAsset("images/missing.jpg").isEmpty() && findAsset("nofolder/x.jpg").isEmpty());

        // Installed, the assets have a folder of their own; the data stays in AppPath.
        Shared().AssetPath = "/usr/share/wordmere";
        QCOMPARE(appFile(QStringLiteral("sounds/a.wav")),
                 QStringLiteral("/usr/share/wordmere/sounds/a.wav"));
        Shared().AssetPath.clear();
    }

    void effectsVoicesWavCheckAndHarmlessQtSound() {
        RecordingSound s;
        Shared().SoundOn = kFalse;
        s.effect(QStringLiteral("buzz"));
        Shared().SoundOn = 1;  // only -1 counts as on
        s.effect(QStringLiteral("buzz"));
        QVERIFY(s.played.isEmpty());
        Shared().SoundOn = kTrue;
        s.effect(QStringLiteral("ding"));
        QCOMPARE(s.played, QStringList{QStringLiteral("ding")});
        s.play(QStringLiteral("always"));  // play ignores the flag
        QCOMPARE(s.played.size(), 2);

        // The mode travels with the effect, and the flag gates every mode alike.
        s.effect(QStringLiteral("blast"), SoundMode::Overlap);
        s.effect(QStringLiteral("bleep"), SoundMode::NoInterrupt);
        Shared().SoundOn = kFalse;
        s.effect(QStringLiteral("muted"), SoundMode::Overlap);
        QCOMPARE(s.played, (QStringList{"ding", "always", "blast", "bleep"}));
        QCOMPARE(s.modes, (QList<SoundMode>{SoundMode::Replace, SoundMode::Replace,
                                            SoundMode::Overlap, SoundMode::NoInterrupt}));
        // Voice plans.
        const auto R = SoundMode::Replace, N = SoundMode::NoInterrupt, O = SoundMode::Overlap;
        // The mode, which of the effect's own voices sound, whether another sounds; the voice and
        // whether the others stop.
        const std::tuple<SoundMode, std::vector<bool>, bool, int, bool> rows[] = {
            {R, {true, true}, true, 0, true},      // replace cuts whatever sounds
            {N, {false}, false, 0, false},         // a bleep into silence
            {N, {true}, false, -1, false},         // a bleep over itself
            {N, {false}, true, -1, false},         // over another
            {N, {false, true}, false, -1, false},  // over a second voice of its own
            {O, {true, false}, true, 1, false},    // overlap reuses a free voice
            {O, {true, true}, false, 2, false},    // or adds one
            {O, std::vector<bool>(kMaxVoices, true), false, 0, false}};  // cap: the oldest
        for (const auto& [mode, mine, other, voice, stopOthers] : rows) {
            const VoicePlan plan = PlanVoice(mode, mine, other);
            QCOMPARE(std::pair(plan.voice, plan.stopOthers), std::pair(voice, stopOthers));
        }
        QTemporaryDir dir;
        const QByteArray good = wavBytes(801);
        QByteArray lying = good;
        lying.replace(4, 4, le32(quint32(good.size() + 50)));  // RIFF size past the end
        QVERIFY(IsCompleteWav(writeFile(dir.filePath("good.wav"), good)));
        for (const QByteArray& bad : {good.left(good.size() - 100), lying, QByteArray("not a wav")})
            QVERIFY(!IsCompleteWav(writeFile(dir.filePath("bad.wav"), bad)));
        QVERIFY(!IsCompleteWav(dir.filePath("none.wav")));

        // Whatever the machine has for audio, none of this may hang or crash.
        QElapsedTimer clock;
        clock.start();
        {
            QtSound sound(dir.path());
            Shared().SoundOn = kTrue;
            for (const char* name :
                 {"missing", "short", "lying.wav", "text", "good", "GOOD.WAV", ""})
                sound.effect(QString::fromLatin1(name));
            for (int i = 0; i < kMaxVoices + 2; ++i) sound.effect("good", SoundMode::Overlap);
            sound.effect("good", SoundMode::NoInterrupt);
            sound.effect("short", SoundMode::Overlap);
            sound.stopAll();
        }
        QtSound nowhere(QStringLiteral("/no/such/folder"));
        nowhere.play(QStringLiteral("x"));
        QVERIFY(clock.elapsed() < 3000);
    }

    void scaledPointsStagesAndTypeThatFits() {
        // The screen, the points asked for and given: 16.875 rounds; 7.5 is below the floor of 9.6.
        const std::tuple<QSize, int, int> rows[] = {{{1024, 768}, 12, 12},
                                                    {{1920, 1080}, 12, 17},
                                                    {{800, 480}, 12, 10},
                                                    {{800, 480}, 10, 8}};
        for (const auto& [screen, asked, given] : rows) {
            ScreenMetrics::overrideScreenSize(screen);
            QCOMPARE(std::pair(ScreenMetrics::screenSize(), ScreenMetrics::scaledPoint(asked)),
                     std::pair(screen, given));
        }
        ScreenMetrics::overrideScreenSize({});
        QVERIFY(ScreenMetrics::screenSize().isValid() && ScreenMetrics::px(15) == 1);
        QCOMPARE(ScreenMetrics::px(ScreenMetrics::twips(640)), 640);
        // A 1600x1000 stage on a wide screen is cut top and bottom, on a tall one left and right,
        // and stays whole on a screen of its own shape.
        // The screen, the scale and the shift.
        const std::tuple<QSizeF, double, double, double> stages[] = {
            {{1920, 1080}, 1.2, 0, -60}, {{1280, 1024}, 1.024, -179.2, 0}, {{800, 500}, 0.5, 0, 0}};
        for (const auto& [screen, scale, dx, dy] : stages) {
            const QTransform t = scene::coverStage(screen, {1600, 1000});
            QCOMPARE(QPointF(t.m11(), t.m22()), QPointF(scale, scale));
            QCOMPARE(QPointF(t.dx(), t.dy()), QPointF(dx, dy));
        }
        QCOMPARE(scene::coverStage({800, 600}, {}), QTransform());
        // Type comes down a pixel at a time to the largest size at which the text fits its box both
        // ways (a long word shrinks it as a long clue does), and never below the floor.
        QFont start("DejaVu Sans");
        start.setPixelSize(40);
        auto at = [&](int px) {
            QFont f = start;
            f.setPixelSize(px);
            return f;
        };
        auto fits = [](const QFont& f, const QRect& box, const QString& text) {
            const QRect need =
                QFontMetrics(f).boundingRect(box, Qt::AlignCenter | Qt::TextWordWrap, text);
            return need.height() <= box.height() && need.width() <= box.width();
        };
        const QString clue = "a bird that swims in icy seas but never flies";
        for (const QRect& box : {QRect(0, 0, 300, 70), QRect(0, 0, 120, 400)}) {
            for (const QString& text : {clue, QString("photosynthesis")}) {
                const int px = scene::shrinkToFit(start, box, text).pixelSize();
                QVERIFY2(px < 40 && px > 8, qPrintable(text));
                QVERIFY(fits(at(px), box, text) && !fits(at(px + 1), box, text));
            }
        }
        // Room to spare keeps the start; no room at all gives the floor, 8 or the one asked for.
        QCOMPARE(std::tuple(scene::shrinkToFit(start, QRect(0, 0, 900, 200), "ox").pixelSize(),
                            scene::shrinkToFit(start, QRect(0, 0, 20, 6), clue).pixelSize(),
                            scene::shrinkToFit(start, QRect(0, 0, 20, 6), clue, 11).pixelSize()),
                 std::tuple(40, 8, 11));

        const QString plate = "Score: 12345";
        const int px = scene::shrinkToWidth(start, 150, plate).pixelSize();
        QVERIFY(QFontMetrics(at(px)).horizontalAdvance(plate) <= 150 &&
                QFontMetrics(at(px + 1)).horizontalAdvance(plate) > 150);
        QCOMPARE(std::tuple(scene::shrinkToWidth(start, 2000, plate).pixelSize(),
                            scene::shrinkToWidth(start, 5, plate).pixelSize(),
                            scene::shrinkToWidth(start, 5, plate, 10).pixelSize()),
                 std::tuple(40, 8, 10));
    }

    void midiRendersAnAudibleLoopingTune() {
        if (DefaultSoundFont().isEmpty()) QSKIP("no General MIDI sound font on this machine");
        QTemporaryDir dir;
        const QString midi = writeFile(dir.filePath("tune.mid"), arpeggio());
        const QByteArray pcm = RenderMidi(midi, 5.0);
        QCOMPARE(pcm.size(), qsizetype(5 * kRate * 4));
        const auto [rms, peak] = levelOf(pcm, 0.05, 2.0);
        QVERIFY(rms > 300 && peak < 32000);  // a modest gain: no clipping on a simple tune
        // Background music goes round again: the file ends at two seconds.
        QVERIFY(levelOf(pcm, 4.1, 4.9).first > 300);
        // The same file renders the same samples: nothing depends on the wall clock.
        QCOMPARE(RenderMidi(midi, 1.0), pcm.left(kRate * 4));
    }

    void heldKeysTapsAndThePointersCount() {
        QWidget screen;
        auto* child = new QLineEdit(&screen);  // takes arrow keys for itself
        KeyState keys(&screen);
        key(child, QEvent::KeyPress, Qt::Key_Left);
        QVERIFY(keys.isDown(Qt::Key_Left) && !keys.isDown(Qt::Key_Right));
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
        QVERIFY(!keys.isDown(Qt::Key_Up) && !keys.takePressed(Qt::Key_Up));
        // A tap between two ticks: not held at the tick, but pressed once.
        // A tap between two ticks: not held at the tick, but pressed once.
        key(&screen, QEvent::KeyPress, Qt::Key_Space);
        key(&screen, QEvent::KeyRelease, Qt::Key_Space);
        QVERIFY(!keys.isDown(Qt::Key_Space) && keys.takePressed(Qt::Key_Space));
        QVERIFY(!keys.takePressed(Qt::Key_Space));
        // Holding it down does not fire again through auto-repeat.
        key(&screen, QEvent::KeyPress, Qt::Key_Space);
        QVERIFY(keys.takePressed(Qt::Key_Space));
        key(&screen, QEvent::KeyPress, Qt::Key_Space, true);
        QVERIFY(!keys.takePressed(Qt::Key_Space) && keys.isDown(Qt::Key_Space));
        // Losing the window: nothing stays held. clear() forgets taps too.
        QEvent deactivate(QEvent::WindowDeactivate);
        QApplication::sendEvent(&screen, &deactivate);
        QVERIFY(!keys.isDown(Qt::Key_Space));
        key(&screen, QEvent::KeyPress, Qt::Key_Z);
        keys.clear();
        QVERIFY(!keys.takePressed(Qt::Key_Z));
        // The pointer counts like the platform.
        QVERIFY(Pointer::count() == 0 && !cursorBlank());
        // Show or hide, the count it leaves, and whether the pointer is hidden: shown twice
        // needs two hides.
        const std::tuple<bool, int, bool> steps[] = {{false, -1, true}, {false, -2, true},
                                                     {true, -1, true},  {true, 0, false},
                                                     {true, 1, false},  {false, 0, false}};
        for (auto [show, count, hidden] : steps) {
            QCOMPARE(Pointer::show(show), count);
            QCOMPARE(std::pair(Pointer::isHidden(), cursorBlank()), std::pair(hidden, hidden));
        }
        QCOMPARE(QGuiApplication::overrideCursor(), nullptr);  // nothing left on the stack

        // A screen that hides the pointer and closes without showing it again.
        {
            PointerScope scope;
            Pointer::show(false);
            Pointer::show(false);
            QVERIFY(cursorBlank());
        }
        QVERIFY(Pointer::count() == 0 && !QGuiApplication::overrideCursor());
    }

    void spriteGridCutsLeftToRightThenDownAndSvgFramesById() {
        QTemporaryDir dir;
        QImage strip(40, 16, QImage::Format_ARGB32);
        for (int y = 0; y < 16; ++y)
            for (int x = 0; x < 40; ++x)
                strip.setPixel(x, y, qRgb((y / 8 * 4 + x / 10) * 30, 0, 0));
        const QString path = dir.filePath("walk.png");
        QVERIFY(strip.save(path));

        const SpriteSheet sheet = SpriteSheet::fromGrid(path, "walk", {10, 8});
        QCOMPARE(std::tuple(sheet.frameCount("walk"), sheet.frame("walk", 5).size(),
                            qRed(sheet.frame("walk", 5).pixel(3, 3)),
                            qRed(sheet.frame("walk_6").pixel(0, 0))),
                 std::tuple(8, QSize(10, 8), 150, 180));
        QVERIFY(sheet.frame("walk", 8).isNull() && sheet.frame("walk", -1).isNull() &&
                sheet.frame("run", 0).isNull() && sheet.error().isEmpty());
        QCOMPARE(SpriteSheet::fromGrid(path, "walk", {10, 8}, 3).frameCount("walk"), 3);
        // Cells that do not fill the picture exactly: the ragged edge is left out.
        QCOMPARE(SpriteSheet::fromGrid(path, "walk", {15, 8}).frameCount("walk"), 4);

        // Bad input: a clear message naming the file, never a crash.
        for (const QSize size : {QSize(0, 8), QSize(50, 8)}) {
            const SpriteSheet bad = SpriteSheet::fromGrid(path, "walk", size);
            QVERIFY(bad.isEmpty() && bad.error().contains(path));
        }
        const QString missing = dir.filePath("nothing.png");
        const SpriteSheet none = SpriteSheet::fromGrid(missing, "walk", {10, 8});
        QVERIFY(none.isEmpty() && none.error().contains(missing) && none.frame("walk_0").isNull());
        // Two frames of a ball (the second inside a moved group), a lone picture, a gap after 2.
        const QString svg =
            writeFile(dir.filePath("sprites.svg"),
                      "<svg xmlns='http://www.w3.org/2000/svg' width='200' height='100' viewBox='0 "
                      "0 200 100'>"
                      "<rect id='ball_0' x='10' y='10' width='20' height='10' fill='#ff0000'/>"
                      "<g transform='translate(100,50)'>"
                      "<rect id='ball_1' x='0' y='0' width='20' height='10' fill='#0000ff'/></g>"
                      "<rect id='star_0' x='50' y='50' width='8' height='8' fill='#00ff00'/>"
                      "<rect id='star_2' x='70' y='50' width='8' height='8' fill='#00ff00'/>"
                      "<rect id='title' x='0' y='0' width='5' height='5' fill='#000000'/></svg>");
        const SpriteSheet drawn = SpriteSheet::fromSvg(svg, 2.0);
        // star_2 without star_1 is not a frame.
        QCOMPARE(std::tuple(drawn.error(), drawn.names(), drawn.frameCount("ball"),
                            drawn.frameCount("star")),
                 std::tuple(QString(), QStringList{"ball", "star"}, 2, 1));
        // The group's move does not matter: the frame is the element alone.
        const QImage red = drawn.frame("ball", 0), blue = drawn.frame("ball_1");
        QCOMPARE(std::tuple(red.size(), red.pixel(20, 10), blue.size(), blue.pixel(20, 10)),
                 std::tuple(QSize(40, 20), qRgb(255, 0, 0), QSize(40, 20), qRgb(0, 0, 255)));
        const SpriteSheet only = SpriteSheet::fromSvg(svg, 1.0, {"star"});
        QCOMPARE(std::pair(only.names(), only.frame("star", 0).size()),
                 std::pair(QStringList{"star"}, QSize(8, 8)));
    }
};

QTEST_MAIN(PlatformBasicsTest)
#include "platform_basics_test.moc"
