#include "shell/game_registry.h"

#include <cstdio>

#include "shell/catalogue.h"
#include "shell/screens.h"

namespace wm {

namespace {
QStringList& errors() {
    static QStringList e;
    return e;
}
}  // namespace

GameRegistrar::GameRegistrar(const char* card, std::function<QWidget*()> make,
                             std::initializer_list<const char*> assets) {
    std::vector<std::string> files(assets.begin(), assets.end());
    if (!AttachGame(card, make, std::move(files))) {
        errors() << QString::fromUtf8(card);
        std::fprintf(stderr, "wordmere: no game card is named \"%s\"\n", card);
        return;
    }
    RegisterScreen(QString::fromStdString(FindCard(card)->screen), std::move(make));
}

QStringList GameRegistrationErrors() {
    return errors();
}

}  // namespace wm
