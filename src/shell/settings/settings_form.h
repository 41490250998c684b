#pragma once

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>
#include <functional>

#include "shell/bridge/settings_binding.h"

namespace tarnel {

// The pieces the settings tabs are laid out with.

// A titled section of a form; add controls to its layout.
QVBoxLayout* formSection(QVBoxLayout* form, const QString& title);
// A grey explanatory line under a control, wrapped, indented to the control's text.
QLabel* formNote(const QString& text);
// A check box for a setting, added to `into` and bound to it.
QCheckBox* formToggle(QVBoxLayout* into, const char* label, const Observable<bool>& value,
                      std::function<void(bool)> write, Bindings& keep);

}  // namespace tarnel
