// The toolbar of the list editors: picture keys with their captions.
#pragma once

#include <QString>
#include <functional>
#include <utility>
#include <vector>

class QToolBar;
class QWidget;

namespace wm {

using ToolKey = std::pair<QString, std::function<void()>>;
// Each key's action is named after its caption ("Add Word" -> "AddWord"). The "Foreign" key
// shows "Insert Foreign Language Characters" as its tip.
QToolBar* MakeEditorToolbar(QWidget* screen, bool withCaptions, const std::vector<ToolKey>& keys);

}  // namespace wm
