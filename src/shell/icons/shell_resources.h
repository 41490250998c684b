#pragma once

namespace tarnel {

// Registers the compiled-in artwork and sounds (":/icons/", ":/sounds/"). The shell's library
// is static, so its resources join the program only when something calls this.
void initShellResources();

}  // namespace tarnel
