#pragma once

#include <QLocalServer>
#include <chrono>
#include <filesystem>
#include <functional>
#include <map>
#include <string>

namespace tarnel {

// What a second launch asks of the instance that already runs on the same stores.
enum class InstanceRequestKind {
    import,  // payload: a JSON array of connection records in the stored form
    show,    // payload: empty; the tray application raises its popup
    status,  // payload: empty; the answer's text is the fleet's status document (fleet_status.h)
};

struct InstanceAnswer {
    bool ok = false;
    std::string text;  // what the asking process prints or shows
};

// The local socket through which the running instance serves the requests of later launches.
// One request and one answer per connection, each a line of JSON:
//   {"kind":"import","payload":"..."}   ->   {"ok":true,"text":"..."}
// The instance that holds the InstanceLock makes a channel, gives it a handler per request kind
// it serves, and calls listen(). Handlers run on the main loop, one at a time, so they may call
// the manager directly. A kind without a handler is answered with ok false and a sentence.
// A later launch calls send() instead.
class InstanceChannel {
public:
    using Handler = std::function<InstanceAnswer(const std::string& payload)>;

    explicit InstanceChannel(std::filesystem::path socketFile);

    void setHandler(InstanceRequestKind kind, Handler handler);
    // Starts serving. A socket file left by a dead instance is replaced; only the lock holder
    // may call this. Returns false with `error` set when the socket cannot be made.
    bool listen(std::string& error);

    // Sends one request to the instance serving `socketFile` and waits for its answer, at most
    // `limit` in all (an instance still starting is waited for). Blocks; for a process that
    // runs no loop of its own yet. ok is false with a sentence when no answer came.
    static InstanceAnswer send(const std::filesystem::path& socketFile, InstanceRequestKind kind,
                               const std::string& payload,
                               std::chrono::milliseconds limit = std::chrono::seconds(20));

private:
    void serve(class QLocalSocket* socket);
    InstanceAnswer answer(const std::string& requestLine) const;

    std::filesystem::path socketFile_;
    QLocalServer server_;
    std::map<InstanceRequestKind, Handler> handlers_;
};

}  // namespace tarnel
