#include "platform/text.h"

#include <QStringDecoder>
#include <QStringEncoder>

namespace wm {

QString toQ(const std::string& cp1252) {
    QStringDecoder decoder("windows-1252");
    return decoder.decode(QByteArrayView(cp1252.data(), qsizetype(cp1252.size())));
}

std::string fromQ(const QString& text) {
    QStringEncoder encoder("windows-1252");
    QByteArray bytes = encoder.encode(text);
    if (encoder.hasError()) {
        // ICU puts SUB (0x1A) where a character has no byte; the files want "?".
        if (!text.contains(QChar(0x1A))) {
            bytes.replace('\x1A', '?');
        } else {
            // A real SUB in the text: convert one code point at a time to tell them apart.
            bytes.clear();
            for (qsizetype i = 0; i < text.size(); ++i) {
                qsizetype len = (text[i].isHighSurrogate() && i + 1 < text.size() &&
                                 text[i + 1].isLowSurrogate())
                                    ? 2
                                    : 1;
                QStringView one = QStringView(text).mid(i, len);
                QStringEncoder single("windows-1252");
                QByteArray b = single.encode(one);
                bytes += single.hasError() ? QByteArray("?") : b;
                i += len - 1;
            }
        }
    }
    return std::string(bytes.constData(), size_t(bytes.size()));
}

}  // namespace wm
