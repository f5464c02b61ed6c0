// Conversion between the Windows-1252 bytes of the data files and Qt's text.
#pragma once

#include <QString>
#include <string>

namespace wm {

QString toQ(const std::string& cp1252);
std::string fromQ(const QString& text);  // characters outside the code page become "?"

}  // namespace wm
