// Conversion between the Windows-1252 bytes of the data files and Qt's text.
#pragma once

#include <QString>
#include <string>

namespace wm {

QString toQ(const std::string& cp1252);
// Text composed first: a letter typed as its base letter and a combining accent (as some
// keyboards and other systems send it) becomes the one accented letter the files hold. Characters
// outside the code page become "?"; screens that store typed text refuse such text first.
std::string fromQ(const QString& text);
// Whether the files can hold every character of the text, once composed.
bool FitsCodePage(const QString& text);
// The characters the files cannot hold, each once, in the order typed; empty when all fit.
QString OutsideCodePage(const QString& text);

}  // namespace wm
