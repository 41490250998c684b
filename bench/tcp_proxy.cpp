#include "tcp_proxy.h"

#include <array>
#include <cerrno>
#include <list>
#include <stdexcept>
#include <string>
#include <vector>

#include <fcntl.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace tarnel::bench {

namespace {

sockaddr_in loopback(int port) {
    sockaddr_in a{};
    a.sin_family = AF_INET;
    a.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    a.sin_port = htons(static_cast<std::uint16_t>(port));
    return a;
}

// A reset rather than an orderly close: the peer sees the connection fail, as it does when a
// router drops it.
void reset(int fd) {
    linger l{1, 0};
    setsockopt(fd, SOL_SOCKET, SO_LINGER, &l, sizeof l);
    close(fd);
}

// One relayed connection: `pending[i]` holds what was read from side i and not yet written to
// the other side. A side is read only when its pending bytes are gone, so neither buffer grows.
struct Link {
    std::array<int, 2> fd{-1, -1};
    std::array<std::string, 2> pending;
    bool broken = false;   // one side ended or failed: close both in order
    bool dropped = false;  // cut on purpose: reset both
};

void readSide(Link& link, int side) {
    char buffer[64 * 1024];
    const ssize_t n = recv(link.fd[side], buffer, sizeof buffer, MSG_DONTWAIT);
    if (n > 0)
        link.pending[side].assign(buffer, static_cast<std::size_t>(n));
    else if (n == 0 || (errno != EAGAIN && errno != EINTR))
        link.broken = true;
}

void writeSide(Link& link, int from) {
    std::string& out = link.pending[from];
    const ssize_t n = send(link.fd[1 - from], out.data(), out.size(), MSG_DONTWAIT | MSG_NOSIGNAL);
    if (n > 0)
        out.erase(0, static_cast<std::size_t>(n));
    else if (n < 0 && errno != EAGAIN && errno != EINTR)
        link.broken = true;
}

}  // namespace

TcpProxy::TcpProxy(int upstreamPort) : upstreamPort_(upstreamPort) {
    listener_ = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in a = loopback(0);
    socklen_t length = sizeof a;
    if (listener_ < 0 || bind(listener_, reinterpret_cast<sockaddr*>(&a), sizeof a) != 0 ||
        listen(listener_, 64) != 0 ||
        getsockname(listener_, reinterpret_cast<sockaddr*>(&a), &length) != 0)
        throw std::runtime_error("the proxy cannot listen on 127.0.0.1");
    port_ = ntohs(a.sin_port);
    thread_ = std::jthread([this](std::stop_token stop) { relay(stop); });
}

TcpProxy::~TcpProxy() {
    thread_.request_stop();
    thread_.join();
    close(listener_);
}

void TcpProxy::relay(std::stop_token stop) {
    std::list<Link> links;
    int dropsSeen = drops_.load();
    while (!stop.stop_requested()) {
        if (const int drops = drops_.load(); drops != dropsSeen) {
            dropsSeen = drops;
            for (Link& link : links) link.dropped = true;
        }
        for (auto it = links.begin(); it != links.end();) {
            if (!it->broken && !it->dropped) {
                ++it;
                continue;
            }
            for (int fd : it->fd) it->dropped ? reset(fd) : void(close(fd));
            it = links.erase(it);
        }

        const bool stalled = stalled_.load();
        std::vector<pollfd> fds{{listener_, POLLIN, 0}};
        std::vector<std::pair<Link*, int>> sides;
        for (Link& link : links)
            for (int side = 0; side < 2; ++side) {
                short events = 0;
                if (!stalled && link.pending[side].empty()) events |= POLLIN;
                if (!stalled && !link.pending[1 - side].empty()) events |= POLLOUT;
                fds.push_back({link.fd[side], events, 0});
                sides.emplace_back(&link, side);
            }
        if (poll(fds.data(), fds.size(), 100) <= 0) continue;

        if (fds[0].revents & POLLIN) {
            const int client = accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
            const int server = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
            const sockaddr_in upstream = loopback(upstreamPort_);
            if (client >= 0 && server >= 0 &&
                connect(server, reinterpret_cast<const sockaddr*>(&upstream), sizeof upstream) == 0) {
                links.push_back(Link{{client, server}, {}, false, false});
            } else {
                // The server is away: the client sees its connection refused, late.
                if (client >= 0) reset(client);
                if (server >= 0) close(server);
            }
        }
        for (std::size_t i = 0; i < sides.size(); ++i) {
            auto [link, side] = sides[i];
            const short revents = fds[i + 1].revents;
            if (revents & POLLOUT) writeSide(*link, 1 - side);
            if (revents & POLLIN) readSide(*link, side);
            else if (revents & (POLLHUP | POLLERR)) link->broken = true;
        }
    }
    for (Link& link : links)
        for (int fd : link.fd) reset(fd);
}

}  // namespace tarnel::bench
