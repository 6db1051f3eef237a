#include "reports/page_maker.h"
#include "reports/pages/broken_report.h"

namespace kelvor {

namespace {

class PangoPageMaker : public PageMaker {
  public:
    [[nodiscard]] std::unique_ptr<PagedReport> Break(const Document& document,
                                                     const PageSetup& setup) const override {
        return std::make_unique<BrokenReport>(setter_, document, setup);
    }

  private:
    TypeSetter setter_;
};

}  // namespace

}  // namespace kelvor

/// The entry of the module.
extern "C" __attribute__((visibility("default"))) const kelvor::PageMaker* KelvorPageMaker(int version) {
    static const kelvor::PangoPageMaker maker;
    return version == kelvor::kPageMakerVersion ? &maker : nullptr;
}
