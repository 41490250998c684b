#include "fleet/keyring_passwords.h"

#include "records/log_service.h"

namespace tarnel {

KeyringPasswords::KeyringPasswords(Keyring* keyring, LogService& log,
                                   std::function<void()> onMoved, ReadHandler onRead)
    : keyring_(keyring), log_(log), onMoved_(std::move(onMoved)), onRead_(std::move(onRead)) {}

void KeyringPasswords::load(std::set<Uuid> inKeyring) {
    inKeyring_ = std::move(inKeyring);
    known_.clear();
    // Read at once, so that the editor shows them; with no keyring here nobody needs to hear so
    // until a connection is to start.
    if (keyringAnswers())
        for (const auto& id : inKeyring_) read(id);
}

std::vector<ConnectionConfig> KeyringPasswords::store(const std::vector<ConnectionConfig>& list) {
    std::vector<ConnectionConfig> stored = list;
    current_.clear();
    for (auto& c : stored) {
        current_[c.id] = {c.name, c.password};
        if (inKeyring_.contains(c.id)) {
            const auto known = known_.find(c.id);
            // A password never read shows as empty; an empty one is then no change, and the
            // keyring's stays.
            const bool unchanged =
                known != known_.end() ? known->second == c.password : c.password.empty();
            if (unchanged) {
                c.password.clear();
                continue;
            }
            // Changed: the file holds the new one until the keyring has it.
            inKeyring_.erase(c.id);
            known_.erase(c.id);
            if (c.password.empty()) remove(c.id);
        }
        if (!c.password.empty()) moveIntoKeyring(c.id, c.password);
    }
    for (auto it = inKeyring_.begin(); it != inKeyring_.end();) {
        if (current_.contains(*it)) {
            ++it;
            continue;
        }
        remove(*it);
        known_.erase(*it);
        it = inKeyring_.erase(it);
    }
    return stored;
}

bool KeyringPasswords::isKnown(const Uuid& id) const {
    return !inKeyring_.contains(id) || known_.contains(id);
}

void KeyringPasswords::request(const Uuid& id) {
    if (isKnown(id) || reading_.contains(id)) return;
    if (!keyringAnswers()) {
        onRead_(id, {false, "", "no Secret Service runs on the session bus here"});
        return;
    }
    read(id);
}

void KeyringPasswords::read(const Uuid& id) {
    reading_.insert(id);
    keyring_->read(id.toString(), [this, alive = std::weak_ptr(alive_), id](const auto& reply) {
        if (alive.expired()) return;
        reading_.erase(id);
        // A password typed meanwhile has replaced the one read.
        if (isKnown(id)) return;
        if (reply.ok) known_[id] = reply.secret;
        onRead_(id, reply);
    });
}

void KeyringPasswords::moveIntoKeyring(const Uuid& id, const std::string& password) {
    if (!keyringAnswers()) return;
    if (auto w = writing_.find(id); w != writing_.end() && w->second == password) return;
    if (auto r = refused_.find(id); r != refused_.end() && r->second == password) return;
    writing_[id] = password;
    keyring_->write(id.toString(), password,
                    [this, alive = std::weak_ptr(alive_), id, password](const auto& reply) {
                        if (!alive.expired()) written(id, password, reply);
                    });
}

void KeyringPasswords::written(const Uuid& id, const std::string& password,
                               const Keyring::Reply& reply) {
    if (auto w = writing_.find(id); w != writing_.end() && w->second == password) writing_.erase(w);
    const auto record = current_.find(id);
    if (record == current_.end()) {
        // The connection was deleted while its password was on the way.
        if (reply.ok) remove(id);
        return;
    }
    // A later password is on its way, or already there.
    if (record->second.password != password || inKeyring_.contains(id)) return;
    if (!reply.ok) {
        refused_[id] = password;
        log_.log("[" + record->second.name + "] The password stays in the settings file: the " +
                     "desktop's keyring did not take it (" + reply.error + ")",
                 LogLevel::warning);
        return;
    }
    inKeyring_.insert(id);
    known_[id] = password;
    onMoved_();
}

void KeyringPasswords::remove(const Uuid& id) {
    // An entry left behind when no keyring answers holds a password nobody uses; it does no harm.
    if (keyringAnswers()) keyring_->remove(id.toString(), [](const Keyring::Reply&) {});
}

}  // namespace tarnel
