#include "platform/text.h"

#include <QStringDecoder>
#include <QStringEncoder>

namespace wm {

namespace {

QString Composed(const QString& text) {
    return text.normalized(QString::NormalizationForm_C);
}

// A character fits when it goes to a byte and comes back as itself.
bool Fits(QStringView text) {
    QStringEncoder encode("windows-1252");
    const QByteArray bytes = encode(text);
    if (encode.hasError()) return false;
    QStringDecoder decode("windows-1252");
    return QString(decode(bytes)) == text;
}

// Calls `each` with every character of the text, a surrogate pair as one.
template <class Each>
void ForEachCharacter(const QString& text, Each each) {
    for (qsizetype i = 0; i < text.size(); ++i) {
        const qsizetype len =
            text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate() ? 2
                                                                                             : 1;
        each(QStringView(text).mid(i, len));
        i += len - 1;
    }
}

}  // namespace

QString toQ(const std::string& cp1252) {
    QStringDecoder decoder("windows-1252");
    return decoder.decode(QByteArrayView(cp1252.data(), qsizetype(cp1252.size())));
}

std::string fromQ(const QString& typed) {
    const QString text = Composed(typed);
    QStringEncoder encoder("windows-1252");
    QByteArray bytes = encoder.encode(text);
    if (encoder.hasError()) {
        // ICU puts SUB (0x1A) where a character has no byte; the files want "?".
        if (!text.contains(QChar(0x1A))) {
            bytes.replace('\x1A', '?');
        } else {
            // A real SUB in the text: convert one character at a time to tell them apart.
            bytes.clear();
            ForEachCharacter(text, [&](QStringView one) {
                QStringEncoder single("windows-1252");
                QByteArray b = single.encode(one);
                bytes += single.hasError() ? QByteArray("?") : b;
            });
        }
    }
    return std::string(bytes.constData(), size_t(bytes.size()));
}

bool FitsCodePage(const QString& text) {
    return Fits(Composed(text));
}

QString OutsideCodePage(const QString& text) {
    const QString composed = Composed(text);
    QString out;
    if (Fits(composed)) return out;
    ForEachCharacter(composed, [&](QStringView one) {
        if (!Fits(one) && !out.contains(one)) out += one;
    });
    return out;
}

}  // namespace wm
