#include "reports/page_maker.h"

#include "platform/module.h"

namespace kelvor {

const PageMaker& LoadPageMaker() {
    static const PageMaker& maker =
        OpenDoor<PageMaker>({"kelvor-pages.so", kPageMakerEntryName, "what makes pages"}, kPageMakerVersion);
    return maker;
}

}  // namespace kelvor
