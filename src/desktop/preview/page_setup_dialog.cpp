#include "desktop/preview/page_setup_dialog.h"

#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>

namespace kelvor {

namespace {

constexpr double kPointsPerInch = 72.0;
constexpr double kLeastInches = 0.25;
constexpr double kMostInches = 2.0;
constexpr double kStepInches = 0.05;

struct PaperName {
    Paper paper;
    const char* name;
};
constexpr PaperName kPapers[] = {{Paper::Letter, "Letter, 8.5 x 11 in"}, {Paper::A4, "A4, 210 x 297 mm"}};

}  // namespace

std::optional<PageSetup> AskPageSetup(QWidget* parent, const PageSetup& now) {
    QDialog dialog(parent);
    dialog.setObjectName(QStringLiteral("PageSetup"));
    dialog.setWindowTitle(QStringLiteral("Page Setup"));
    auto* papers = new QComboBox(&dialog);
    for (const PaperName& paper : kPapers) {
        papers->addItem(QString::fromLatin1(paper.name), static_cast<int>(paper.paper));
    }
    papers->setCurrentIndex(papers->findData(static_cast<int>(now.paper)));
    auto* margin = new QDoubleSpinBox(&dialog);
    margin->setRange(kLeastInches, kMostInches);
    margin->setSingleStep(kStepInches);
    margin->setSuffix(QStringLiteral(" in"));
    margin->setValue(now.marginPoints / kPointsPerInch);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto* rows = new QFormLayout(&dialog);
    rows->addRow(QStringLiteral("&Paper"), papers);
    rows->addRow(QStringLiteral("&Margins"), margin);
    rows->addRow(buttons);
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return PageSetup{static_cast<Paper>(papers->currentData().toInt()), margin->value() * kPointsPerInch};
}

}  // namespace kelvor
