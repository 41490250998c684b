#include "app/instance_channel.h"

#include <QElapsedTimer>
#include <QLocalSocket>
#include <nlohmann/json.hpp>
#include <optional>
#include <thread>

#include "platform/private_folder.h"

namespace tarnel {

namespace {

using nlohmann::json;

constexpr std::pair<InstanceRequestKind, const char*> kindNames[] = {
    {InstanceRequestKind::import, "import"},
    {InstanceRequestKind::show, "show"},
    {InstanceRequestKind::status, "status"},
};

const char* nameOf(InstanceRequestKind kind) {
    for (const auto& [k, name] : kindNames)
        if (k == kind) return name;
    return "";
}

std::optional<InstanceRequestKind> kindNamed(const std::string& name) {
    for (const auto& [k, n] : kindNames)
        if (name == n) return k;
    return std::nullopt;
}

QByteArray line(const json& value) { return QByteArray::fromStdString(value.dump() + "\n"); }

}  // namespace

InstanceChannel::InstanceChannel(std::filesystem::path socketFile)
    : socketFile_(std::move(socketFile)) {
    QObject::connect(&server_, &QLocalServer::newConnection, &server_, [this] {
        while (QLocalSocket* socket = server_.nextPendingConnection()) serve(socket);
    });
}

void InstanceChannel::setHandler(InstanceRequestKind kind, Handler handler) {
    handlers_[kind] = std::move(handler);
}

bool InstanceChannel::listen(std::string& error) {
    makePrivateFolder(socketFile_.parent_path());
    const QString name = QString::fromStdString(socketFile_.string());
    QLocalServer::removeServer(name);  // the holder of the lock owns the name
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    if (server_.listen(name)) return true;
    error = "cannot serve " + socketFile_.string() + ": " + server_.errorString().toStdString();
    return false;
}

void InstanceChannel::serve(QLocalSocket* socket) {
    QObject::connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
    QObject::connect(socket, &QLocalSocket::readyRead, socket, [this, socket] {
        if (!socket->canReadLine()) return;
        const auto request = socket->readLine().toStdString();
        const InstanceAnswer a = answer(request);
        socket->write(line({{"ok", a.ok}, {"text", a.text}}));
        socket->flush();
        socket->disconnectFromServer();
    });
}

InstanceAnswer InstanceChannel::answer(const std::string& requestLine) const {
    const json request = json::parse(requestLine, nullptr, false);
    if (!request.is_object() || !request.contains("kind") || !request["kind"].is_string())
        return {false, "Tarnel could not read the request"};
    const auto kindName = request["kind"].get<std::string>();
    const auto kind = kindNamed(kindName);
    const auto handler = kind ? handlers_.find(*kind) : handlers_.end();
    if (handler == handlers_.end())
        return {false, "The running Tarnel does not take \"" + kindName + "\" requests"};
    const auto payload = request.value("payload", std::string{});
    return handler->second(payload);
}

InstanceAnswer InstanceChannel::send(const std::filesystem::path& socketFile,
                                     InstanceRequestKind kind, const std::string& payload,
                                     std::chrono::milliseconds limit) {
    QElapsedTimer elapsed;
    elapsed.start();
    const auto left = [&] { return std::max<int>(0, int(limit.count() - elapsed.elapsed())); };
    QLocalSocket socket;
    const QString name = QString::fromStdString(socketFile.string());
    // The instance takes its lock before it listens: while it starts, try again.
    for (;;) {
        socket.connectToServer(name);
        if (socket.waitForConnected(left())) break;
        if (left() == 0)
            return {false, "Tarnel is running but does not answer at " + socketFile.string()};
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
    socket.write(line({{"kind", nameOf(kind)}, {"payload", payload}}));
    socket.flush();
    while (!socket.canReadLine()) {
        if (!socket.waitForReadyRead(left()))
            return {false, "The running Tarnel gave no answer: " + socket.errorString().toStdString()};
    }
    const json answer = json::parse(socket.readLine().toStdString(), nullptr, false);
    if (!answer.is_object() || !answer.contains("ok") || !answer["ok"].is_boolean())
        return {false, "The running Tarnel gave an answer that does not read"};
    return {answer["ok"].get<bool>(), answer.value("text", std::string{})};
}

}  // namespace tarnel
