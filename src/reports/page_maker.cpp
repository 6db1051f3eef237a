#include "reports/page_maker.h"

#include "platform/module.h"
#include "platform/translation.h"

namespace kelvor {

const PageMaker& LoadPageMaker() {
    static const auto& maker = OpenDoor<PageMaker>(
        {"kelvor-pages.so", kPageMakerEntryName, ToTranslate("The module that makes pages")},
        kPageMakerVersion);
    return maker;
}

}  // namespace kelvor
