#pragma once

#include <sys/types.h>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace tarnel::testing {

// A Secret Service of the test's own: a private session bus with GNOME Keyring on it, its login
// keyring made and unlocked with an empty password and kept under `dir`, so that nothing of the
// user's is touched.
class SecretService {
public:
    // What is missing for one, or nothing when it can be started.
    static std::optional<std::string> unavailable();

    // Starts both and waits until the keyring stores; throws std::runtime_error with the
    // daemons' output if it cannot.
    explicit SecretService(std::filesystem::path dir);
    ~SecretService();  // both stopped

    SecretService(const SecretService&) = delete;
    SecretService& operator=(const SecretService&) = delete;

    // DBUS_SESSION_BUS_ADDRESS for the programs that are to find it.
    const std::string& busAddress() const { return busAddress_; }
    // What the keyring holds for the program under `key` (the service "Tarnel"); nothing when
    // it holds nothing.
    std::optional<std::string> lookup(const std::string& key) const;

private:
    pid_t spawn(const std::string& program, const std::vector<std::string>& args,
                const std::filesystem::path& in, const std::filesystem::path& out) const;
    // Runs `command` with the bus in its environment; its output, or nothing if it failed.
    std::optional<std::string> onBus(const std::string& command) const;
    void stop();

    std::filesystem::path dir_;
    std::string busAddress_;
    pid_t bus_ = -1, keyring_ = -1;
};

}  // namespace tarnel::testing
