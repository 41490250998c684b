// The settings window's connection editor on a real desktop, put into one state after another
// on command, one line on standard input each; every command answers with its name once the
// window shows it. The screenshot script photographs each state. Commands:
//   select N            the N-th connection of the list (from 0)
//   top                 the editor scrolled to its top
//   advanced            "Advanced Options" opened and scrolled to
//   test                "Test Connection" pressed; answers at once, while it runs
//   browse              "Browse..." pressed; answers when the tree is there
//   pick A B ...        the folders A, B ... of the tree ticked
//   filters             the extension filter scrolled to
//   rules               three rules added, the last one never reached, and scrolled to
//   sheet               the rule sheet opened over the first rule
//   preset NAME         the sector NAME chosen, which asks first
//   rename NAME         NAME typed as the connection's name
//   apply               "Apply" pressed
//   leave N             the N-th connection selected, which asks first while edits are unapplied
//   escape              the sheet or question on screen dismissed
#include <QApplication>
#include <QGroupBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QSocketNotifier>
#include <QTimer>
#include <QToolButton>
#include <iostream>
#include <sstream>
#include <string>
#include <unistd.h>

#include "app/app_language.h"
#include "app/app_paths.h"
#include "app/app_services.h"
#include "platform/qt/canberra_sound_player.h"
#include "shell/editor/connection_edit_view.h"
#include "shell/editor/extension_filter_view.h"
#include "shell/editor/remote_folder_tree_view.h"
#include "shell/editor/routing_rule_edit_sheet.h"
#include "shell/editor/routing_rule_list.h"
#include "shell/icons/shell_resources.h"
#include "shell/settings/connections_settings_tab.h"
#include "shell/settings/settings_window.h"

using namespace tarnel;

namespace {

void answer(const std::string& word) {
    std::cout << word << std::endl;
}

// Brings `widget`, or the section that holds it with its title, to the top.
void scrollTo(ConnectionEditView& editor, QWidget* widget, bool wholeSection = true) {
    while (wholeSection && widget->parentWidget() && !qobject_cast<QGroupBox*>(widget))
        widget = widget->parentWidget();
    auto* area = editor.scrollArea();
    const QPoint at = widget->mapTo(area->widget(), QPoint(0, 0));
    area->verticalScrollBar()->setValue(at.y() - 12);
}

}  // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    initShellResources();
    const auto paths = AppPaths::fromEnvironment();
    const AppLanguage language(paths.settingsFile);  // the one its settings choose, as the program
    AppServices services(paths, std::make_unique<CanberraSoundPlayer>());
    services.manager().loadConnections();
    const auto& list = services.manager().connections()();
    SettingsWindow window(services.manager(), services.settings(), services.soundPlayer(),
                          SettingsTab::connections,
                          list.empty() ? std::nullopt : std::optional(list.front().id));
    window.resize(1000, 760);
    window.show();

    auto editor = [&]() -> ConnectionEditView& { return *window.connections().editor(); };
    RoutingRuleEditSheet* sheet = nullptr;
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &app, [&] {
        std::string line;
        if (!std::getline(std::cin, line)) return QApplication::quit();
        std::istringstream words(line);
        std::string command;
        words >> command;
        if (command == "select") {
            int n = 0;
            words >> n;
            window.connections().select(services.manager().connections()()[static_cast<std::size_t>(n)].id);
        } else if (command == "top") {
            editor().scrollArea()->verticalScrollBar()->setValue(0);
        } else if (command == "advanced") {
            auto* header = editor().control<QToolButton>("Advanced Options");
            header->setChecked(true);
            QApplication::processEvents();
            scrollTo(editor(), header);
        } else if (command == "test") {
            editor().testConnection();
        } else if (command == "browse") {
            editor().browse();
            while (editor().isBrowsing()) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
            QApplication::processEvents();
            scrollTo(editor(), &editor().folderTree());
        } else if (command == "pick") {
            std::string id;
            while (words >> id)
                if (auto* row = editor().folderTree().row(id)) row->setCheckState(0, Qt::Checked);
        } else if (command == "filters") {
            scrollTo(editor(), &editor().filterView(), false);
        } else if (command == "rules") {
            RoutingRule photos;
            photos.matchType = RuleMatchType::fileType;
            photos.matchValue = "jpg, cr3";
            photos.destinationPath = "/home/studio/Photos";
            photos.tagColor = FinderTagColor::blue;
            photos.tagName = "Client shoot";
            RoutingRule everything;
            everything.tagColor = FinderTagColor::green;
            RoutingRule invoices;
            invoices.matchType = RuleMatchType::nameStartsWith;
            invoices.matchValue = "INV_";
            invoices.destinationPath = "/home/studio/Invoices";
            for (const auto& rule : {photos, everything, invoices}) {
                editor().editRoutingRule = [rule](const RoutingRule&) { return std::optional(rule); };
                editor().ruleList().addRule();
            }
            QApplication::processEvents();
            scrollTo(editor(), &editor().ruleList());
        } else if (command == "sheet") {
            const auto rule = editor().config().routingRules.front();
            sheet = new RoutingRuleEditSheet(rule, {}, &window);
            sheet->setAttribute(Qt::WA_DeleteOnClose);
            sheet->show();
        } else if (command == "preset") {
            std::string name;
            words >> name;
            for (auto sector : allSectorPresets)
                if (displayName(sector) == name) {
                    answer(command);
                    // The question runs its own loop; later commands are read inside it.
                    QTimer::singleShot(0, &window, [&editor, sector] { editor().chooseSector(sector); });
                    return;
                }
        } else if (command == "rename") {
            std::string name;
            std::getline(words >> std::ws, name);
            auto* field = editor().control<QLineEdit>("Name");
            field->selectAll();
            field->insert(QString::fromStdString(name));
        } else if (command == "apply") {
            editor().applyButton()->click();
        } else if (command == "leave") {
            std::size_t n = 0;
            words >> n;
            answer(command);
            const auto id = services.manager().connections()()[n].id;
            QTimer::singleShot(0, &window, [&window, id] { window.connections().select(id); });
            return;
        } else if (command == "escape") {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) box->reject();
            if (sheet) sheet->close();
            sheet = nullptr;
        }
        answer(command);
    });
    return app.exec();
}
