#include "shell/settings/settings_form.h"

#include "shell/bridge/qt_text.h"

namespace tarnel {

QVBoxLayout* formSection(QVBoxLayout* form, const QString& title) {
    auto* box = new QGroupBox(title);
    auto* layout = new QVBoxLayout(box);
    layout->setSpacing(6);
    form->addWidget(box);
    return layout;
}

QLabel* formNote(const QString& text) {
    auto* note = new QLabel(text);
    note->setWordWrap(true);
    note->setContentsMargins(24, 0, 0, 4);
    auto palette = note->palette();
    palette.setColor(QPalette::WindowText, QColor(0x6e, 0x6e, 0x73));
    note->setPalette(palette);
    auto font = note->font();
    font.setPointSizeF(font.pointSizeF() * 0.9);
    note->setFont(font);
    return note;
}

QCheckBox* formToggle(QVBoxLayout* into, const char* label, const Observable<bool>& value,
                      std::function<void(bool)> write, Bindings& keep) {
    auto* box = new QCheckBox(ui(label));
    into->addWidget(box);
    bindChecked(box, value, std::move(write), keep);
    return box;
}

}  // namespace tarnel
