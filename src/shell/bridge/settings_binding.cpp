#include "shell/bridge/settings_binding.h"

#include "shell/bridge/qt_text.h"

namespace tarnel {

void bindChecked(QAbstractButton* control, const Observable<bool>& value,
                 std::function<void(bool)> write, Bindings& keep) {
    keep.push_back(value.subscribe([control](bool v) { control->setChecked(v); }));
    QObject::connect(control, &QAbstractButton::toggled, control, [write](bool v) { write(v); });
}

void bindValue(QSpinBox* control, const Observable<int>& value, std::function<void(int)> write,
               Bindings& keep) {
    keep.push_back(value.subscribe([control](int v) { control->setValue(v); }));
    QObject::connect(control, &QSpinBox::valueChanged, control, [write](int v) { write(v); });
}

void bindChoice(QComboBox* control, const Observable<std::string>& value,
                std::function<void(const std::string&)> write, Bindings& keep) {
    keep.push_back(value.subscribe([control](const std::string& v) {
        if (int index = control->findData(qs(v)); index >= 0) control->setCurrentIndex(index);
    }));
    QObject::connect(control, &QComboBox::currentIndexChanged, control, [control, write](int index) {
        if (index >= 0) write(control->itemData(index).toString().toStdString());
    });
}

void bindVisible(QWidget* widget, const Observable<bool>& value, bool shownWhen, Bindings& keep) {
    keep.push_back(value.subscribe([widget, shownWhen](bool v) { widget->setVisible(v == shownWhen); }));
}

}  // namespace tarnel
