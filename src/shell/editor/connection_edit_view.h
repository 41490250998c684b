#pragma once

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QWidget>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "connections/connection_config.h"
#include "connections/sector_preset.h"
#include "fleet/connections_manager.h"
#include "platform/task.h"
#include "shell/editor/editor_form.h"
#include "shell/editor/path_chooser.h"

namespace tarnel {

class ExtensionFilterView;
class RemoteFolderTreeView;
class RoutingRuleList;
class TestStepsView;

// Every setting of one connection as a scrolling form over a working copy of its record.
// Nothing reaches the manager until "Apply", which hands the copy to `updateConnection` (and so
// restarts the connection). A password the user has not typed is never handed on: the record's
// stays, whether or not the keyring had answered when the editor was made. "Test Connection"
// and "Browse..." run on a temporary client made from the copy, apart from any engine, while the
// window stays responsive.
class ConnectionEditView final : public QWidget {
public:
    ConnectionEditView(ConnectionsManager& manager, ConnectionConfig config, bool autoFocusName);
    ~ConnectionEditView() override;

    const ConnectionConfig& config() const { return config_; }
    // Whether the copy differs from the record as it was opened or last applied.
    bool hasUnappliedChanges() const { return config_ != applied_; }
    // The stored record has changed: a password read from the keyring meanwhile takes the
    // place of the empty one shown, unless the user has typed one.
    void storedRecordChanged(const ConnectionConfig& stored);

    // The panels, the preset question and the rule sheet; tests answer in the user's place.
    ChoosePath choosePath;
    std::function<bool(const QString& sectorName)> confirmPreset;
    std::function<std::optional<RoutingRule>(const RoutingRule& rule)> editRoutingRule;

    void apply();
    void testConnection();
    // Lists the remote folder into the tree; `id` names a folder of the tree to list below it.
    void browse(const std::string& id = {});
    // The preset picker's choice: asks, then writes the sector's values into the copy or puts
    // the picker back.
    void chooseSector(SectorPreset sector);

    bool isTesting() const { return isTesting_; }
    bool isBrowsing() const { return isBrowsing_; }
    QPushButton* applyButton() const { return apply_; }
    // "Changes applied", shown from an Apply until the next edit.
    QLabel* appliedNote() const { return appliedNote_; }
    QPushButton* testButton() const { return test_; }
    QComboBox* sectorPicker() const { return sectorPicker_; }
    TestStepsView& testSteps() const { return *steps_; }
    RemoteFolderTreeView& folderTree() const { return *tree_; }
    ExtensionFilterView& filterView() const { return *filters_; }
    RoutingRuleList& ruleList() const { return *rules_; }
    QScrollArea* scrollArea() const { return scroll_; }
    // The control whose label is `label`, as the form names them.
    template <typename T>
    T* control(const char* label) const {
        return findChild<T*>(QString::fromUtf8(label));
    }

private:
    void addSectorPicker();
    void addConnectionSection();
    void addFolderSections();
    void addTransferSection();
    void addRoutingSections();
    void addScheduleSections();
    void addSubdirectorySection();
    void addRenameSection();
    void addAdvancedSection();
    void chooseFolder(std::string ConnectionConfig::*field,
                      const std::function<void(const std::filesystem::path&)>& grant);
    void edited();
    Task<void> runTest(ConnectionConfig copy);
    Task<void> runBrowse(ConnectionConfig copy, std::string id);
    std::optional<RoutingRule> openRuleSheet(const RoutingRule& rule);

    ConnectionsManager& manager_;
    ConnectionConfig config_;
    ConnectionConfig applied_;  // what the manager holds, as far as this editor knows
    bool passwordTyped_ = false;
    std::unique_ptr<EditorForm> form_;
    QScrollArea* scroll_;
    QComboBox* sectorPicker_ = nullptr;
    SectorPreset sectorPickerSelection_ = SectorPreset::custom;
    TestStepsView* steps_ = nullptr;
    RemoteFolderTreeView* tree_ = nullptr;
    ExtensionFilterView* filters_ = nullptr;
    RoutingRuleList* rules_ = nullptr;
    QPushButton* test_ = nullptr;
    QPushButton* apply_ = nullptr;
    QLabel* appliedNote_ = nullptr;
    bool isTesting_ = false;
    bool isBrowsing_ = false;
    // Tasks in flight hold this weakly: the editor may be gone when they come back.
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
};

}  // namespace tarnel
