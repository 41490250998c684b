#include "transfer/curl_transfer_client.h"

#include <chrono>
#include <future>
#include <thread>

#include <gtest/gtest.h>

#include "platform/testing/wait_for.h"
#include "transfer/ftp_error.h"
#include "transfer/listing_parser.h"
#include "transfer/ssh_known_hosts.h"
#include "transfer_fixture.h"

namespace tarnel {
namespace {

namespace fs = std::filesystem;
using testing::ServerProtocol;

// Runs `op`, expecting an FTPError, and returns it.
template <typename Op>
FTPError failureOf(Op op) {
    try {
        op();
    } catch (const FTPError& e) {
        return e;
    }
    ADD_FAILURE() << "no FTPError";
    return FTPError::parseFailed("none");
}

// The client's operations that report to a Completion, waited for.
void download(CurlTransferClient& client, const std::string& url, const fs::path& to,
              std::int64_t resumeFrom, ProgressCallback onProgress = {}) {
    waitFor([&](Completion done) { client.startDownload(url, to, resumeFrom, onProgress, done); });
}
void removeFile(CurlTransferClient& client, const std::string& name) {
    waitFor([&](Completion done) { client.startRemoveFile(name, done); });
}

using ClientTest = TransferTest;

TEST_P(ClientTest, everyOperationRidesOnOneSession) {
    const std::string body = randomBytes(300'000);
    write(root / "a.txt", body);
    write(root / "sub dir" / "b c.txt", "bc");
    auto client = makeClient();
    const std::string base = client->config().baseRemoteURL();

    const auto rows = parseListing(client->listDirectory(base), true);
    EXPECT_NE(std::find(rows.begin(), rows.end(), FTPFileEntry{"a.txt", 300'000, false, ""}),
              rows.end());
    EXPECT_EQ(parseListing(client->listDirectory(base + "sub%20dir/"), false),
              (std::vector<FTPFileEntry>{{"b c.txt", 2, false, ""}}));
    const auto names = parseNameList(client->listNames(base));
    EXPECT_NE(std::find(names.begin(), names.end(), "sub dir"), names.end());

    const fs::path local = dir / "local" / "a.txt";
    std::int64_t lastDownloaded = 0, lastTotal = 0;
    download(*client, base + "a.txt", local, 0, {});
    EXPECT_EQ(read(local), body);

    // Resume: the callback sees whole-file figures.
    write(local, body.substr(0, 100'000));
    download(*client, base + "a.txt", local, 100'000, [&](std::int64_t d, std::int64_t t) {
        lastDownloaded = d;
        lastTotal = t;
    });
    EXPECT_EQ(read(local), body);
    EXPECT_EQ(lastDownloaded, 300'000);
    EXPECT_EQ(lastTotal, 300'000);

    // A blank in the path: raw for FTP's DELE, quoted for SFTP's rm.
    removeFile(*client, "sub dir/b c.txt");
    EXPECT_FALSE(fs::exists(root / "sub dir" / "b c.txt"));
    waitFor([&](Completion done) { client->startRemoveDirectory("sub dir", done); });
    EXPECT_FALSE(fs::exists(root / "sub dir"));
    // One session for all seven operations; FTP adds a data connection to each of the five
    // that read something; the removals ask for no listing after them.
    const bool ftp = protocol() != ServerProtocol::sftp;
    EXPECT_EQ(client->connectionsOpened(), ftp ? 1 + 5 : 1);

    client->probeConnection();  // a new connection of its own
    EXPECT_EQ(client->connectionsOpened(), ftp ? 7 : 2);
    client->closeIdleConnections();
    client->listNames(base);
    EXPECT_EQ(client->connectionsOpened(), ftp ? 9 : 3);
}

// Limits far below the real ones, so that a test can pass them in seconds.
const TransferTimeouts shortTimes{std::chrono::seconds(10), std::chrono::seconds(1),
                                  std::chrono::seconds(1)};

// A download is bounded by silence, not by its length: under a bandwidth cap it may take longer
// than any other operation is given. One that is cut keeps what it received, to be resumed.
TEST_P(ClientTest, aLongDownloadArrivesAndACutOneKeepsItsBytes) {
    write(root / "capped.bin", randomBytes(300'000));
    auto capped = server->connectionConfig();
    capped.maxBandwidthKBps = 100;  // 3 s for the file, against 1 s for a whole operation
    download(*std::make_unique<CurlTransferClient>(capped, dir / "known_hosts", shortTimes),
             capped.baseRemoteURL() + "capped.bin", dir / "local" / "capped.bin", 0);
    EXPECT_EQ(read(dir / "local" / "capped.bin"), read(root / "capped.bin"));

    const std::string body = randomBytes(4'000'000);
    write(root / "big.bin", body);
    auto client = std::make_unique<CurlTransferClient>(server->connectionConfig(),
                                                       dir / "known_hosts", shortTimes);
    const std::string url = client->config().baseRemoteURL() + "big.bin";
    const fs::path local = dir / "local" / "big.bin";
    // Far past the receive buffer: what libssh2 still held when the cut came is lost. Paced, so
    // that a slow client (a sanitizer build) has read the rest before the cut resets the socket.
    server->cutTransfersAfter(2'000'000);
    server->throttleDownloads(8'000'000);
    write(local, "older bytes");
    EXPECT_NE(failureOf([&] { download(*client, url, local, 0); }).curlCode(), 0);
    const std::string kept = read(local);
    EXPECT_FALSE(kept.empty());
    EXPECT_EQ(kept, body.substr(0, kept.size()));

    server->cutTransfersAfter(std::nullopt);
    server->throttleDownloads(std::nullopt);
    download(*client, url, local, std::ssize(kept));
    EXPECT_EQ(read(local), body);

    // A first attempt that received nothing leaves no empty file for a resume to trip on.
    server->refuseLogins(true);
    client->closeIdleConnections();
    EXPECT_EQ(failureOf([&] { download(*client, url, local, 0); }).curlCode(), CURLE_LOGIN_DENIED);
    EXPECT_FALSE(fs::exists(local));

    const fs::path unwritable = dir / "missing folder" / "x";
    EXPECT_EQ(failureOf([&] { download(*client, url, unwritable, 0, {}); }).kind(),
              FTPError::Kind::localFolderNotWritable);
}

TEST_P(ClientTest, serverRefusalsBecomeTheirSentences) {
    write(root / "keep.txt", "k");
    auto client = makeClient();
    const std::string base = client->config().baseRemoteURL();

    server->refuseDeletes(true);
    const FTPError refusedDelete = failureOf([&] { removeFile(*client, "keep.txt"); });
    EXPECT_EQ(refusedDelete.curlCode(), CURLE_QUOTE_ERROR);
    EXPECT_EQ(refusedDelete.errorDescription(),
              "FTP quote command failed. Check the remote path or delete permissions.");
    EXPECT_TRUE(fs::exists(root / "keep.txt"));

    // FTP refuses the folder change; SFTP says the folder is not there.
    const int missing = failureOf([&] { client->listDirectory(base + "nope/"); }).curlCode();
    EXPECT_EQ(missing, protocol() == ServerProtocol::sftp ? CURLE_REMOTE_FILE_NOT_FOUND
                                                          : CURLE_REMOTE_ACCESS_DENIED);
    // The session that failed is closed: the next operation logs in anew and works.
    const auto before = client->connectionsOpened();
    client->listDirectory(base);
    EXPECT_EQ(client->connectionsOpened() - before, protocol() == ServerProtocol::sftp ? 1 : 2);

    server->refuseLogins(true);
    client->closeIdleConnections();
    const FTPError login = failureOf([&] { client->listDirectory(base); });
    EXPECT_EQ(login.curlCode(), CURLE_LOGIN_DENIED);
    EXPECT_EQ(login.errorDescription(), "Authentication failed. Check your username and password.");
    client->probeConnection();  // a refused login still answers the probe

    server->stop();
    client->closeIdleConnections();
    EXPECT_EQ(failureOf([&] { client->listDirectory(base); }).errorDescription(),
              "Could not connect to server. Check the host, port, and that the server is running.");
    EXPECT_EQ(failureOf([&] { client->probeConnection(); }).curlCode(), CURLE_COULDNT_CONNECT);
}

// Two sessions allowed: six downloads asked for at once take turns on two logins, and those
// that fail hand their turns on like the others.
TEST_P(ClientTest, operationsBeyondTheSessionLimitWaitTheirTurn) {
    auto config = server->connectionConfig();
    config.maxConcurrentDownloads = 2;
    auto client = makeClient(config);
    const auto start = [&](const std::string& name) {
        auto result = std::make_shared<std::promise<std::exception_ptr>>();
        client->startDownload(config.baseRemoteURL() + name, dir / "local" / name, 0, {},
                              [result](std::exception_ptr e) { result->set_value(e); });
        return result->get_future();
    };
    const auto settled = [](std::future<std::exception_ptr>& f) {
        return f.wait_for(std::chrono::seconds(30)) == std::future_status::ready;
    };

    std::vector<std::future<std::exception_ptr>> downloads;
    for (int i = 0; i < 6; ++i) {
        write(root / ("f" + std::to_string(i)), std::string(i + 1, 'x'));
        downloads.push_back(start("f" + std::to_string(i)));
    }
    for (int i = 0; i < 6; ++i) {
        ASSERT_TRUE(settled(downloads[i])) << i;
        EXPECT_EQ(downloads[i].get(), nullptr);
        EXPECT_EQ(read(dir / "local" / ("f" + std::to_string(i))), std::string(i + 1, 'x'));
    }
    const bool ftp = protocol() != ServerProtocol::sftp;
    EXPECT_EQ(client->connectionsOpened(), ftp ? 2 + 6 : 2);

    auto missing = start("missing");
    auto gone = start("gone");
    auto waiting = start("f1");
    ASSERT_TRUE(settled(missing));
    EXPECT_NE(missing.get(), nullptr);
    ASSERT_TRUE(settled(gone));
    EXPECT_NE(gone.get(), nullptr);
    ASSERT_TRUE(settled(waiting));
    EXPECT_EQ(waiting.get(), nullptr);
}

INSTANTIATE_TEST_SUITE_P(Servers, ClientTest,
                         ::testing::Values(ServerProtocol::ftp, ServerProtocol::ftps,
                                           ServerProtocol::sftp),
                         protocolLabel);

using FtpClientTest = On<TransferTest, ServerProtocol::ftp>;

TEST_F(FtpClientTest, headersCarryTheSizeOfAnEncodedName) {
    write(root / "in" / "a b%.txt", std::string(42, 'x'));
    auto config = server->connectionConfig();
    config.remotePath = "/in";
    EXPECT_EQ(parseContentLength(makeClient(config)->fetchHeaders("a b%.txt")), 42);
    EXPECT_EQ(percentEncodedPath("sub/a b%?#é.txt"), "sub/a%20b%25%3F%23%C3%A9.txt");
}

TEST_F(FtpClientTest, tlsAskedOfAPlainServerIsRefused) {
    auto config = server->connectionConfig();
    config.transferProtocol = TransferProtocol::ftps;
    EXPECT_EQ(
        failureOf([&] { makeClient(config)->listDirectory(config.baseRemoteURL()); }).curlCode(),
        CURLE_USE_SSL_FAILED);
}

// libcurl waits for the reply to a command sent after a transfer by blocking; on a thread that
// drove another session too, that one would wait as well.
TEST_F(FtpClientTest, aReplyLongInComingHoldsUpNoOtherSession) {
    write(root / "slow.txt", "s");
    write(root / "fast.txt", "f");
    auto client = makeClient();
    server->delayDeleteReplies(3);
    std::promise<std::exception_ptr> deleted;
    auto answered = deleted.get_future();
    client->startRemoveFile("slow.txt", [&](std::exception_ptr e) { deleted.set_value(e); });
    // The file goes when the command arrives: from then on the client waits for the reply.
    for (int i = 0; i < 1000 && fs::exists(root / "slow.txt"); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    ASSERT_FALSE(fs::exists(root / "slow.txt"));

    download(*client, client->config().baseRemoteURL() + "fast.txt", dir / "local" / "fast.txt", 0);
    EXPECT_EQ(read(dir / "local" / "fast.txt"), "f");
    EXPECT_EQ(answered.wait_for(std::chrono::seconds(0)), std::future_status::timeout);
    EXPECT_EQ(answered.get(), nullptr);
}

// A server that falls silent with the connection open ends the download after the stall time,
// with what came before kept.
TEST_F(FtpClientTest, aSilentServerEndsTheDownloadWithItsBytesKept) {
    const std::string body = randomBytes(300'000);
    write(root / "big.bin", body);
    auto client = std::make_unique<CurlTransferClient>(server->connectionConfig(),
                                                       dir / "known_hosts", shortTimes);
    const fs::path local = dir / "local" / "big.bin";
    server->stallTransfersAfter(100'000);
    EXPECT_EQ(failureOf([&] {
                  download(*client, client->config().baseRemoteURL() + "big.bin", local, 0);
              }).curlCode(),
              CURLE_OPERATION_TIMEDOUT);
    EXPECT_EQ(read(local), body.substr(0, 100'000));
}

using FtpsClientTest = On<TransferTest, ServerProtocol::ftps>;

TEST_F(FtpsClientTest, anUntrustedCertificateIsRefusedWithItsSentence) {
    auto config = server->connectionConfig();
    config.allowSelfSignedCerts = false;
    const FTPError error =
        failureOf([&] { makeClient(config)->listDirectory(config.baseRemoteURL()); });
    EXPECT_EQ(error.errorDescription(),
              "SSL certificate verification failed. The server certificate may be self-signed or "
              "expired.");
}

using SftpClientTest = On<TransferTest, ServerProtocol::sftp>;

TEST_F(SftpClientTest, hostKeysAreTrustedOnFirstUseAndAChangeIsRefused) {
    const auto config = server->connectionConfig();
    makeClient(config)->listNames(config.baseRemoteURL());
    const std::string recorded = read(dir / "known_hosts");
    const std::string hostPort = "[127.0.0.1]:" + std::to_string(server->port());
    EXPECT_TRUE(recorded.starts_with(hostPort + " ssh-ed25519 AAAA")) << recorded;
    makeClient(config)->listNames(config.baseRemoteURL());  // the recorded key matches
    EXPECT_EQ(read(dir / "known_hosts"), recorded);

    // Another key on record for this host and port: someone else answers now.
    std::string otherKey =
        std::string("\0\0\0\x0bssh-ed25519\0\0\0\x20", 19) + std::string(32, 'k');
    write(dir / "known_hosts", knownHostsLine("127.0.0.1", server->port(), otherKey) + "\n");
    const FTPError error =
        failureOf([&] { makeClient(config)->listNames(config.baseRemoteURL()); });
    EXPECT_EQ(error.curlCode(), CURLE_PEER_FAILED_VERIFICATION);
    EXPECT_NE(error.errorDescription().find((dir / "known_hosts").string()), std::string::npos);
}

// libcurl calls back at each round of its loop: one that polls without waiting for the server's
// answer to the closing of the file calls back thousands of times and keeps a core busy.
TEST_F(SftpClientTest, aDownloadWaitsForTheServerInsteadOfSpinning) {
    write(root / "small.bin", randomBytes(10'000));
    auto client = makeClient();
    int callbacks = 0;
    for (int i = 0; i < 5; ++i)
        download(*client, client->config().baseRemoteURL() + "small.bin",
                 dir / "local" / "small.bin", 0, [&](std::int64_t, std::int64_t) { ++callbacks; });
    EXPECT_LT(callbacks, 5 * 100);  // about 25 a download when it waits
}

TEST_F(SftpClientTest, logsInWithAKeyFile) {
    write(root / "k.txt", "key");
    auto config = server->connectionConfig();
    config.password = "";
    config.sshKeyPath = server->clientKeyPath().string();
    download(*makeClient(config), config.baseRemoteURL() + "k.txt", dir / "local" / "k.txt", 0, {});
    EXPECT_EQ(read(dir / "local" / "k.txt"), "key");
}

}  // namespace
}  // namespace tarnel
