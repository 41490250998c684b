#pragma once

#include <QAbstractButton>
#include <QComboBox>
#include <QSpinBox>
#include <functional>
#include <string>
#include <vector>

#include "platform/observable.h"

namespace tarnel {

// Two-way links between a settings value and its control: the control shows the value and
// follows it when it changes elsewhere (the popover's mute button), and a change by the user
// writes it at once through `write`. The links last as long as `keep` does.
using Bindings = std::vector<Subscription>;

void bindChecked(QAbstractButton* control, const Observable<bool>& value,
                 std::function<void(bool)> write, Bindings& keep);
void bindValue(QSpinBox* control, const Observable<int>& value, std::function<void(int)> write,
               Bindings& keep);
// The entry whose data (its item data, a string) equals the value is the current one.
void bindChoice(QComboBox* control, const Observable<std::string>& value,
                std::function<void(const std::string&)> write, Bindings& keep);
// Shown while `value` is `shownWhen`.
void bindVisible(QWidget* widget, const Observable<bool>& value, bool shownWhen, Bindings& keep);

}  // namespace tarnel
