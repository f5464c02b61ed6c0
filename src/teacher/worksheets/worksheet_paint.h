// Draws worksheet pages on a printer, the preview or a PDF file, as vector text and lines.
#pragma once

#include <QString>
#include <vector>

#include "teacher/worksheets/worksheet.h"

class QPagedPaintDevice;
class QPageSize;

namespace wm::sheets {

// Widths as the printed face sets them (DejaVu Sans, unhinted), in points.
double printWidth(const std::string& text, const Font& font);
QPageSize qtPageSize(Paper paper);

// One page of the device a page of the sheet, from the paper's corner; the device's own
// margins must be zero.
void paintPages(const std::vector<Page>& pages, QPagedPaintDevice& device);

// Writes the pages as a PDF, whole or not at all. Empty when done; else a message naming the
// file.
QString writePdf(const std::vector<Page>& pages, Paper paper, const QString& title,
                 const QString& path);

}  // namespace wm::sheets
