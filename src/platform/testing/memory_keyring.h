#pragma once

#include <map>
#include <string>

#include "platform/keyring.h"
#include "platform/testing/virtual_loop.h"

namespace tarnel {

// A keyring held in memory that answers on the loop, in order, as a desktop's would. Tests
// switch it off (no keyring here), make it refuse writes, or keep its answers back.
class MemoryKeyring final : public Keyring {
public:
    explicit MemoryKeyring(VirtualLoop& loop) : loop_(loop) {}

    bool available = true;
    bool refuseWrites = false;
    std::map<std::string, std::string> entries;

    bool isAvailable() const override { return available; }
    void read(const std::string& key, Handler done) override {
        answer(std::move(done), [this, key] {
            auto it = entries.find(key);
            return it == entries.end() ? Reply{false, "", "the keyring holds no password for it"}
                                       : Reply{true, it->second, ""};
        });
    }
    void write(const std::string& key, const std::string& secret, Handler done) override {
        answer(std::move(done), [this, key, secret] {
            if (refuseWrites) return Reply{false, "", "the keyring is locked"};
            entries[key] = secret;
            return Reply{true, "", ""};
        });
    }
    void remove(const std::string& key, Handler done) override {
        answer(std::move(done), [this, key] {
            entries.erase(key);
            return Reply{true, "", ""};
        });
    }
    void finish(std::chrono::milliseconds) override { loop_.runUntilIdle(); }

private:
    // The job takes effect when it answers, as a real keyring's does.
    template <typename Job>
    void answer(Handler done, Job job) {
        loop_.post([done = std::move(done), job = std::move(job)] { done(job()); });
    }

    VirtualLoop& loop_;
};

}  // namespace tarnel
