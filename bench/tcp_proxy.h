#pragma once

#include <atomic>
#include <thread>

namespace tarnel::bench {

// A TCP relay on 127.0.0.1 between a client and a server on this machine, that can cut every
// connection it carries or hold them open with no byte passing: what a flaky network does to a
// transfer in mid-flight. One thread polls every connection.
class TcpProxy {
public:
    // Listens on a free port and relays each connection to 127.0.0.1:`upstreamPort`.
    explicit TcpProxy(int upstreamPort);
    ~TcpProxy();

    TcpProxy(const TcpProxy&) = delete;
    TcpProxy& operator=(const TcpProxy&) = delete;

    int port() const { return port_; }
    // Resets every connection open now, both sides.
    void dropAll() { drops_.fetch_add(1); }
    // While on, nothing passes either way and new connections hang after their accept.
    void stall(bool on) { stalled_.store(on); }

private:
    void relay(std::stop_token stop);

    int listener_ = -1;
    int port_ = 0;
    int upstreamPort_;
    std::atomic<int> drops_{0};
    std::atomic<bool> stalled_{false};
    std::jthread thread_;
};

}  // namespace tarnel::bench
