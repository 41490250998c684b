#include "shell/icons/shell_resources.h"

#include <QtGlobal>

// Q_INIT_RESOURCE declares a function of the global namespace.
static void initResources() {
    Q_INIT_RESOURCE(tarnel);
}

namespace tarnel {

void initShellResources() {
    initResources();
}

}  // namespace tarnel
