#include "recipe_text.h"

#include <QFile>
#include <QRegularExpression>

namespace wm::assetgen {

std::vector<RecipeLine> splitRecipe(const QString& text) {
    std::vector<RecipeLine> out;
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (int i = 0; i < lines.size(); ++i) {
        QString line = lines[i];
        const int hash = line.indexOf(QLatin1Char('#'));
        // '#' is also a sharp in pitch names ("F#5"), so a comment starts only at a line's
        // beginning or after a blank.
        int cut = -1;
        for (int k = hash; k >= 0; k = line.indexOf(QLatin1Char('#'), k + 1)) {
            if (k == 0 || line[k - 1].isSpace()) {
                cut = k;
                break;
            }
        }
        if (cut >= 0) line.truncate(cut);
        line = line.trimmed();
        if (line.isEmpty()) continue;
        RecipeLine r;
        r.number = i + 1;
        const QStringList words = line.split(QRegularExpression(QStringLiteral("\\s+")));
        r.word = words.front();
        r.rest = line.mid(r.word.size()).trimmed();
        for (int w = 1; w < words.size(); ++w) {
            const int eq = words[w].indexOf(QLatin1Char('='));
            if (eq > 0) {
                r.keys.push_back({words[w].left(eq), words[w].mid(eq + 1)});
            } else {
                r.args.push_back(words[w]);
            }
        }
        out.push_back(std::move(r));
    }
    return out;
}

bool readRecipeFile(const QString& path, QString* text, QString* error) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        if (error) *error = QStringLiteral("cannot read %1: %2").arg(path, file.errorString());
        return false;
    }
    *text = QString::fromUtf8(file.readAll());
    return true;
}

QString recipeError(const QString& file, int line, const QString& message) {
    return QStringLiteral("%1:%2: %3").arg(file).arg(line).arg(message);
}

int pitchNumber(const QString& name) {
    static const int kSteps[7] = {9, 11, 0, 2, 4, 5, 7};  // A B C D E F G
    if (name.isEmpty()) return -1;
    const QChar head = name[0].toUpper();
    if (head < QLatin1Char('A') || head > QLatin1Char('G')) return -1;
    int key = kSteps[head.unicode() - 'A'];
    int i = 1;
    if (i < name.size() && name[i] == QLatin1Char('#')) {
        ++key;
        ++i;
    } else if (i < name.size() && name[i] == QLatin1Char('b')) {
        --key;
        ++i;
    }
    if (i >= name.size()) return -1;
    bool ok = false;
    const int octave = name.mid(i).toInt(&ok);
    if (!ok || octave < 0 || octave > 9) return -1;
    return key + (octave + 1) * 12;
}

}  // namespace wm::assetgen
