#pragma once

#include <chrono>
#include <functional>
#include <string>

namespace tarnel {

// The desktop's store of secrets (a Secret Service: GNOME Keyring, KWallet), holding the
// program's entries by key. Answers come on the main loop, in the order the jobs were asked, so
// that a write followed by a delete of one key ends deleted.
class Keyring {
public:
    struct Reply {
        bool ok = false;
        std::string secret;  // what a read found
        std::string error;   // why it failed, in words a person can act on
    };
    using Handler = std::function<void(const Reply&)>;

    virtual ~Keyring() = default;

    // Whether a keyring answers here now; on a server, or outside the desktop session, none does.
    virtual bool isAvailable() const = 0;
    // A key that holds nothing reads as a failure; deleting it succeeds.
    virtual void read(const std::string& key, Handler done) = 0;
    virtual void write(const std::string& key, const std::string& secret, Handler done) = 0;
    virtual void remove(const std::string& key, Handler done) = 0;
    // Waits, running the loop, until every job asked so far has answered or `limit` has passed:
    // before the program exits.
    virtual void finish(std::chrono::milliseconds limit) = 0;
};

}  // namespace tarnel
