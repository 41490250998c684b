#pragma once

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "connections/connection_config.h"
#include "platform/keyring.h"

namespace tarnel {

class LogService;

// Where each connection's password lives: in the desktop's keyring where one answers, otherwise
// in the settings file with the rest of the record. A record whose password is in the keyring is
// stored with an empty password and marked so; the keyring holds the password under the
// connection's id.
//
// Nothing is lost on the way: a password leaves the settings file only once the keyring has
// confirmed it, and one in the keyring that cannot be read (no keyring here, a locked one) keeps
// its place and mark, never replaced by the empty password the record shows meanwhile.
class KeyringPasswords {
public:
    // A password kept in the keyring has been read (`reply.secret`), or could not be.
    using ReadHandler = std::function<void(const Uuid& id, const Keyring::Reply& reply)>;

    // Without a keyring, every password stays in the settings file. `onMoved` runs when a
    // password has moved into the keyring, so that the list is saved without it; `onRead` when
    // a read asked for by load() or request() has answered.
    KeyringPasswords(Keyring* keyring, LogService& log, std::function<void()> onMoved,
                     ReadHandler onRead);

    KeyringPasswords(const KeyringPasswords&) = delete;
    KeyringPasswords& operator=(const KeyringPasswords&) = delete;

    // Takes the ids of the stored records whose passwords are in the keyring, and reads them.
    void load(std::set<Uuid> inKeyring);
    // The list as the settings file is to hold it: the passwords kept in the keyring blank, their
    // records named by inKeyring(). Follows `list` there: a password new to the keyring is
    // written to it, and one that was changed, cleared or whose connection is gone leaves it.
    std::vector<ConnectionConfig> store(const std::vector<ConnectionConfig>& list);
    const std::set<Uuid>& inKeyring() const { return inKeyring_; }

    // Whether the record in memory holds the connection's password: false while it is only in
    // the keyring, not read yet or unreadable.
    bool isKnown(const Uuid& id) const;
    // Reads a password that is not known, unless a read of it is under way; without a keyring
    // the answer, a failure, comes at once.
    void request(const Uuid& id);

private:
    struct Record {
        std::string name, password;
    };

    void read(const Uuid& id);
    void moveIntoKeyring(const Uuid& id, const std::string& password);
    void written(const Uuid& id, const std::string& password, const Keyring::Reply& reply);
    void remove(const Uuid& id);
    bool keyringAnswers() const { return keyring_ && keyring_->isAvailable(); }

    Keyring* keyring_;
    LogService& log_;
    std::function<void()> onMoved_;
    ReadHandler onRead_;

    std::set<Uuid> inKeyring_;
    std::map<Uuid, std::string> known_;    // passwords in the keyring that are also in memory
    std::set<Uuid> reading_;
    std::map<Uuid, Record> current_;       // the records of the last store(), by id
    std::map<Uuid, std::string> writing_;  // the last password on its way into the keyring
    std::map<Uuid, std::string> refused_;  // passwords the keyring would not take: not asked again
    // Answers may come after this object is gone; they check this first.
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
};

}  // namespace tarnel
