#include "desktop/drawing_menu.h"

#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <algorithm>

#include "desktop/qt_text.h"
#include "desktop/scene_painting.h"
#include "desktop/translated_text.h"
#include "drawing/chart_scene.h"
#include "drawing/picture_file.h"
#include "drawing/section_layers.h"
#include "drawing/svg.h"
#include "platform/file_name.h"
#include "platform/replace_file.h"
#include "platform/text.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

constexpr double kDotsOfInch = 192.0;  // of a picture file

std::string PngOf(const Scene& scene) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!PictureOf(scene, kDotsOfInch).save(&buffer, "PNG"))
        throw FileError(Translated("the picture cannot be made"));
    return bytes.toStdString();
}

/// A name for a file with the drawing: its title.
std::string NameFor(const ChartData& sheet) {
    const std::vector<std::string> lines = LinesOf(sheet.title);
    const std::string name = lines.empty() ? std::string() : FileNameFrom(lines.front());
    return name.empty() ? "chart" : name;
}

/// Asks where to, and writes the drawing there.
void AskAndSave(Program& program, const ChartData& sheet, const std::string& suffix) {
    ProcessState& state = program.state();
    const std::string pattern = "*." + suffix;
    const auto file =
        state.host.dialogs.AskFile({.kind = FileRequest::Kind::Save,
                                    .folder = state.home.ProjectsFolder(),
                                    .filter = Translated("Pictures") + " (" + pattern + ")|" + pattern,
                                    .suffix = suffix,
                                    .title = Translated("Save Picture"),
                                    .suggested = NameFor(sheet) + "." + suffix});
    if (!file) return;
    try {
        SaveDrawing(state.host.files, sheet, *file);
    } catch (const FileError& failure) {
        state.host.dialogs.ShowMessage(
            {.text = "Error saving to " + file->string() + ": " + failure.what(), .title = "Error"});
    }
}

/// As large as the page lets it be.
void Print(const Scene& scene) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageOrientation(QPageLayout::Landscape);
    printer.setDocName(ToQt(scene.title));
    QPrintDialog dialog(&printer);
    if (dialog.exec() != QDialog::Accepted) return;
    QPainter painter(&printer);
    const QRectF page = printer.pageRect(QPrinter::DevicePixel);
    const double scale = std::min(page.width() / scene.width, page.height() / scene.height);
    painter.scale(scale, scale);
    PaintScene(painter, scene);
}

void FillMenu(QMenu& menu, Program& program, const ChartData& sheet) {
    menu.addAction(TranslatedText("Save as &SVG..."), [&] { AskAndSave(program, sheet, "svg"); });
    menu.addAction(TranslatedText("Save as P&NG..."), [&] { AskAndSave(program, sheet, "png"); });
    menu.addAction(TranslatedText("&Copy"), [&] { CopyDrawing(sheet); })->setShortcut(QKeySequence::Copy);
    menu.addAction(TranslatedText("&Print..."), [&] { Print(MakeChartScene(sheet)); });
}

QString TitleOf(const ChartData& sheet) {
    const std::vector<std::string> lines = LinesOf(sheet.title);
    return lines.empty() ? TranslatedText("Chart") : ToQt(lines.front()).replace("&", "&&");
}

}  // namespace

void SaveDrawing(FileSystem& files, const ChartData& sheet, const Path& file) {
    const Scene scene = MakeChartScene(sheet);
    if (EqualNoCase(file.extension().string(), ".png")) return ReplaceFile(files, file, PngOf(scene));
    WritePicture(files, file, scene);
}

void CopyDrawing(const ChartData& sheet) {
    const Scene scene = MakeChartScene(sheet);
    auto* copy = new QMimeData;
    copy->setImageData(PictureOf(scene, kDotsOfInch));
    copy->setData(QStringLiteral("image/svg+xml"), QByteArray::fromStdString(ToSvg(scene)));
    QGuiApplication::clipboard()->setMimeData(copy);
}

void ShowDrawingMenu(Program& program, const std::vector<ChartData>& sheets, const QPoint& place) {
    QMenu menu;
    menu.setObjectName(QStringLiteral("DrawingMenu"));
    for (const ChartData& sheet : sheets) {
        FillMenu(sheets.size() == 1 ? menu : *menu.addMenu(TitleOf(sheet)), program, sheet);
    }
    menu.exec(place);
}

}  // namespace kelvor
