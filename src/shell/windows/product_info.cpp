#include "shell/windows/product_info.h"

namespace tarnel {

// The values come from the build (the project's version and the cache variables beside it).
ProductInfo builtProductInfo() {
    return {TARNEL_VERSION, TARNEL_BUILD_NUMBER, TARNEL_README};
}

}  // namespace tarnel
