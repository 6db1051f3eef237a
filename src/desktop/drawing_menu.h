#pragma once

#include <QPoint>
#include <vector>

#include "forms/chart.h"
#include "platform/file_system.h"
#include "shell/program.h"

namespace kelvor {

/// Writes the drawing of a chart to a file, .svg or .png. Throws FileError.
void SaveDrawing(FileSystem& files, const ChartData& sheet, const Path& file);

/// Puts the drawing of a chart on the clipboard, for programs that draw and for those that write.
void CopyDrawing(const ChartData& sheet);

/// The menu of one or more charts at a place of the screen: to save their drawings, to copy and to print
/// them. What the user chooses is done when it returns.
void ShowDrawingMenu(Program& program, const std::vector<ChartData>& sheets, const QPoint& place);

}  // namespace kelvor
