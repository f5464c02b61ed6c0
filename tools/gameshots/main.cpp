// Pictures of the games for looking at: every built game (or those named) opened from its
// chooser on a classroom list, played on the test clock for a moment, and saved as
// <folder>/<game>-<width>x<height>.png at each size asked for. Nothing is judged here; the
// pictures are for a person to look at before a game is called finished.
//
//   wm_gameshots FOLDER [--size 1280x800] [--size 1920x1080] [--after MS] [GAME...]
#include <QApplication>
#include <QCommandLineParser>
#include <QDir>

#include "game_road.h"
#include "shell/game_registry.h"

using namespace wm;
using namespace wm::test;

namespace {

// A list a teacher might make: short and long words, and a definition long enough to wrap.
const std::vector<std::pair<std::string, std::string>> kList = {
    {"volcano", "a mountain that can throw out hot melted rock"},
    {"habitat", "the natural home of an animal or plant"},
    {"photosynthesis", "how green plants make their food from sunlight, air and water"},
    {"orbit", "the curved path of a planet around a star"},
    {"erosion", "the slow wearing away of rock and soil by wind and water"},
    {"fossil", "the remains of a very old plant or animal, kept in rock"},
    {"glacier", "a huge river of ice that moves very slowly"},
    {"nocturnal", "active at night"},
    {"migrate", "to move from one place to another with the seasons"},
    {"ecosystem", "living things and their surroundings, working together"},
    {"evaporate", "to turn from a liquid into a gas"},
    {"thermometer", "a tool that measures how hot or cold something is"},
};

QSize ParseSize(const QString& text) {
    const QStringList wh = text.split('x');
    return wh.size() == 2 ? QSize(wh[0].toInt(), wh[1].toInt()) : QSize();
}

bool Shoot(const QString& game, QSize size, int afterMs, const QString& file) {
    ShellFixture fx;
    SeededRng dice(7);  // draws as in play, the same every run
    SetRng(&dice);
    ScreenMetrics::overrideScreenSize(size);
    SetModalHook([](QDialog& d) { d.reject(); });
    WriteOneList(fx, "Science Words", kList);
    const GameCard* card = FindCard(game.toStdString());
    ChooseList* chooser = ChooserFor(game, card ? card->options.start : 1, false);
    QWidget* screen = ContinueWithList(chooser, "Science Words");
    if (!screen || !card || screen->objectName() != QString::fromStdString(card->screen)) {
        if (!fx.dialogs.last().isEmpty()) printf("  told: %s\n", qPrintable(fx.dialogs.last()));
        return false;
    }
    for (int t = 0; t < afterMs; t += 30) Pump(30);
    return screen->grab().save(file);
}

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QCommandLineParser cli;
    cli.addPositionalArgument("folder", "Where the pictures go.");
    cli.addOption({"size", "A screen size, as 1280x800 (more than once for more).", "size"});
    cli.addOption({"after", "How long each game plays before its picture (ms).", "ms", "2500"});
    cli.addHelpOption();
    cli.process(app);
    const QStringList args = cli.positionalArguments();
    if (args.isEmpty()) cli.showHelp(1);
    const QString folder = args[0];
    QDir().mkpath(folder);
    QStringList sizes = cli.values("size");
    if (sizes.isEmpty()) sizes = {"1280x800", "1920x1080"};
    QStringList games = args.mid(1);
    if (games.isEmpty())
        for (const GameCard& card : Catalogue())
            if (card.built()) games << QString::fromStdString(card.name);
    int failed = 0;
    for (const QString& game : games)
        for (const QString& sz : sizes) {
            const QString file = folder + "/" + QString(game).replace(' ', '_') + "-" + sz + ".png";
            const bool ok = Shoot(game, ParseSize(sz), cli.value("after").toInt(), file);
            printf("%s %s\n", ok ? "saved " : "FAILED", qPrintable(file));
            failed += !ok;
        }
    return failed ? 1 : 0;
}
