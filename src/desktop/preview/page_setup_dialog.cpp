#include "desktop/preview/page_setup_dialog.h"

#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>

#include "desktop/qt_text.h"
#include "desktop/translated_text.h"

namespace kelvor {

namespace {

constexpr double kPointsPerInch = 72.0;
constexpr double kStepInches = 0.05;

struct PaperName {
    Paper paper;
    const char* name;
};
constexpr PaperName kPapers[] = {{Paper::Letter, ToTranslate("Letter, 8.5 x 11 in")},
                                 {Paper::A4, ToTranslate("A4, 210 x 297 mm")}};

}  // namespace

std::optional<PageSetup> AskPageSetup(QWidget* parent, const PageSetup& now) {
    QDialog dialog(parent);
    dialog.setObjectName(QStringLiteral("PageSetup"));
    dialog.setWindowTitle(TranslatedText("Page Setup"));
    auto* papers = new QComboBox(&dialog);
    for (const PaperName& paper : kPapers) {
        papers->addItem(TranslatedText(paper.name), static_cast<int>(paper.paper));
    }
    papers->setCurrentIndex(papers->findData(static_cast<int>(now.paper)));
    auto* margin = new QDoubleSpinBox(&dialog);
    margin->setRange(kLeastMarginPoints / kPointsPerInch, kMostMarginPoints / kPointsPerInch);
    margin->setSingleStep(kStepInches);
    margin->setSuffix(QStringLiteral(" in"));
    margin->setValue(now.marginPoints / kPointsPerInch);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto* rows = new QFormLayout(&dialog);
    rows->addRow(TranslatedText("&Paper"), papers);
    rows->addRow(TranslatedText("&Margins"), margin);
    rows->addRow(buttons);
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return PageSetup{static_cast<Paper>(papers->currentData().toInt()), margin->value() * kPointsPerInch};
}

}  // namespace kelvor
