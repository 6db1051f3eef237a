#include "shell/hub/tabs.h"

namespace kelvor {

HubPage ProjectIdTab() {
    return {Page("Project ID", {Fields({{"Agency"},
                                        {"Company"},
                                        {"Contractor"},
                                        {"JobNumber"},
                                        {"Location"},
                                        {"Engineer"},
                                        {"State"},
                                        {"PavDesc"}})}),
            {}};
}

}  // namespace kelvor
