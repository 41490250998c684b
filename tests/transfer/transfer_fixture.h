#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "servers/test_server.h"
#include "transfer/curl_transfer_client.h"

namespace tarnel {

// A fresh folder per test, a real server of the test's protocol serving `root`, and a client
// for it whose known-hosts file lives in the folder too.
class TransferTest : public ::testing::TestWithParam<testing::ServerProtocol> {
protected:
    void SetUp() override {
        dir = std::filesystem::temp_directory_path() /
              ("tarnel-transfer-" + std::to_string(std::random_device{}()));
        std::filesystem::create_directories(dir / "local");
        root = dir / "root";
        std::filesystem::create_directories(root);
        server = std::make_unique<testing::TestServer>(testing::ServerOptions{protocol(), root});
    }
    void TearDown() override {
        server.reset();
        std::filesystem::remove_all(dir);
    }

    virtual testing::ServerProtocol protocol() const { return GetParam(); }

    std::unique_ptr<CurlTransferClient> makeClient(const ConnectionConfig& config) const {
        return std::make_unique<CurlTransferClient>(config, dir / "known_hosts");
    }
    std::unique_ptr<CurlTransferClient> makeClient() const {
        return makeClient(server->connectionConfig());
    }

    static void write(const std::filesystem::path& p, const std::string& bytes) {
        std::filesystem::create_directories(p.parent_path());
        std::ofstream(p, std::ios::binary) << bytes;
    }
    static std::string read(const std::filesystem::path& p) {
        std::ifstream in(p, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }
    static std::string randomBytes(std::size_t n) {
        std::mt19937 gen(static_cast<unsigned>(n));
        std::string s(n, '\0');
        for (char& c : s) {
            c = static_cast<char>(gen());
        }
        return s;
    }

    std::filesystem::path dir;
    std::filesystem::path root;
    std::unique_ptr<testing::TestServer> server;
};

inline std::string protocolLabel(const ::testing::TestParamInfo<testing::ServerProtocol>& info) {
    return testing::serverProtocolName(info.param);
}

// `Base` with its server fixed to one protocol, for behaviour only that protocol has.
template <class Base, testing::ServerProtocol protocol_>
class On : public Base {
    testing::ServerProtocol protocol() const override { return protocol_; }
};

}  // namespace tarnel
