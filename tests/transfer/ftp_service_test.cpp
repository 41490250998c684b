#include "transfer/ftp_service.h"

#include <algorithm>
#include <thread>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "platform/testing/virtual_loop.h"
#include "platform/testing/wait_for.h"
#include "transfer/ftp_error.h"
#include "transfer/remote_url.h"
#include "transfer_fixture.h"

namespace tarnel {
namespace {

namespace fs = std::filesystem;
using testing::ServerProtocol;

class ServiceTest : public TransferTest {
protected:
    FTPService makeService(const ConnectionConfig& config) {
        return FTPService(config, logService, makeClient(config));
    }
    FTPService makeService() { return makeService(server->connectionConfig()); }

    std::vector<std::string> logged() {
        loop.runUntilIdle();
        std::vector<std::string> lines;
        for (const auto& e : logService.entries().value()) lines.push_back(e.message);
        return lines;
    }

    static std::vector<std::string> relativePaths(const std::vector<FTPFileEntry>& entries) {
        std::vector<std::string> paths;
        for (const auto& e : entries) paths.push_back(e.relativePath);
        std::sort(paths.begin(), paths.end());
        return paths;
    }

    VirtualLoop loop;
    LogService logService{loop, loop, fs::temp_directory_path() / "tarnel-transfer-test.log"};
};

TEST_P(ServiceTest, listsAndWalksTheServersOwnOutput) {
    write(root / "x.txt", "12345");
    write(root / "a" / "f.txt", "f");
    write(root / "a" / "b" / "c" / "deep.txt", "d");
    write(root / "a" / "x" / "no.txt", "n");
    write(root / "z" / "no.txt", "n");
    write(root / ".hidden", "h");
    auto service = makeService();

    EXPECT_EQ(service.listFiles(), (std::vector<FTPFileEntry>{{"x.txt", 5, false, ""}}));
    const auto atA = service.listFiles("/a");
    EXPECT_EQ(atA.size(), 3u);
    EXPECT_EQ(std::count_if(atA.begin(), atA.end(), [](auto& e) { return e.isDirectory; }), 2);

    // Only folders on the way to, or inside, a/b are entered; files on the way are collected.
    std::vector<FTPFileEntry> walked;
    const std::vector<std::string> allowed = {"a/b"};
    service.collectFiles("/", "", 0, 3, allowed, walked);
    EXPECT_EQ(relativePaths(walked),
              (std::vector<std::string>{"a/b/c/deep.txt", "a/f.txt", "x.txt"}));

    walked.clear();
    service.collectFiles("/", "", 0, 1, std::nullopt, walked);
    EXPECT_EQ(relativePaths(walked), (std::vector<std::string>{"a/f.txt", "x.txt", "z/no.txt"}));

    walked.clear();
    EXPECT_THROW(service.collectFiles("/missing", "", 0, 3, std::nullopt, walked), FTPError);
}

using SftpServiceTest = On<ServiceTest, ServerProtocol::sftp>;

// Over FTP the server speaks MLSD, whose empty answer is an empty folder.
TEST_F(SftpServiceTest, anEmptyFolderFallsBackToANameListAndWarnsOncePerRun) {
    auto service = makeService();
    const std::string warning = "[Test " +
                                std::string(protocolName(service.config().transferProtocol)) +
                                "] LIST returned unparseable output, falling back to NLST";
    EXPECT_TRUE(service.listFiles().empty());
    EXPECT_TRUE(service.listFiles().empty());
    EXPECT_EQ(logged(), (std::vector<std::string>{warning}));
    // A listing with rows ends the run; the next empty one begins another.
    write(root / "x.txt", "x");
    EXPECT_EQ(service.listFiles().size(), 1u);
    fs::remove(root / "x.txt");
    EXPECT_TRUE(service.listFiles().empty());
    EXPECT_EQ(logged(), (std::vector<std::string>{warning, warning}));
}

using FtpServiceTest = On<ServiceTest, ServerProtocol::ftp>;

// MLSD gives names whole; a server that refuses it is listed with LIST, said once.
TEST_F(FtpServiceTest, machineListingsWhereOfferedAndLISTAfterARefusal) {
    write(root / "a -> b.txt", "12345");
    write(root / "sub" / "c.txt", "c");
    auto service = makeService();
    EXPECT_EQ(service.listFiles(), (std::vector<FTPFileEntry>{{"a -> b.txt", 5, false, ""}}));
    EXPECT_EQ(service.listFiles("/sub"), (std::vector<FTPFileEntry>{{"c.txt", 1, false, ""}}));
    fs::remove_all(root / "sub");
    EXPECT_TRUE(service.listFiles("/").size() == 1);
    EXPECT_TRUE(logged().empty());

    server->refuseMachineListings(true);
    auto refused = makeService();
    // LIST cuts the name at its arrow, as it always has.
    EXPECT_EQ(refused.listFiles(), (std::vector<FTPFileEntry>{{"a", 5, false, ""}}));
    EXPECT_EQ(refused.listFiles("/").size(), 1u);
    const std::string fallback =
        "[Test FTP] MLSD refused by the server; listing with LIST from now on";
    EXPECT_EQ(logged(), (std::vector<std::string>{fallback}));
}

// The server reads the whole file before it answers with its checksum: that reply has a limit
// of its own, beyond libcurl's two minutes.
TEST_F(FtpServiceTest, aChecksumReplyIsAwaitedWithinItsOwnLimit) {
    write(root / "x.bin", "12345");
    auto config = server->connectionConfig();
    config.checksumVerification = true;
    server->delayChecksumReplies(2);
    const auto download = [&](std::chrono::seconds limit) {
        TransferTimeouts timeouts;
        timeouts.checksumReply = limit;
        FTPService service(config, logService,
                           std::make_unique<CurlTransferClient>(config, dir / "known_hosts",
                                                                timeouts));
        auto verdict = std::make_shared<ChecksumVerdict>();
        waitFor([&](Completion done) {
            service.startDownloadFile("x.bin", dir / "local" / "x.bin", 0, {}, std::nullopt,
                                      verdict, done);
        });
        return verdict->algorithm;
    };
    EXPECT_EQ(download(std::chrono::seconds(10)), DigestAlgorithm::sha256);
    EXPECT_THROW(download(std::chrono::seconds(1)), FTPError);
}

// The folder's name holds what a URL would read as a fragment: it is addressed as itself.
TEST_P(ServiceTest, downloadsByNameOrByTheGivenURL) {
    write(root / "in #1" / "a b.txt", "hello");
    auto config = server->connectionConfig();
    config.remotePath = "/in #1";
    auto service = makeService(config);
    const fs::path local = dir / "local" / "a.partial";
    const auto download = [&](const std::string& name, std::optional<std::string> url) {
        waitFor([&](Completion done) { service.startDownloadFile(name, local, 0, {}, url, nullptr, done); });
    };
    download("a b.txt", std::nullopt);
    EXPECT_EQ(read(local), "hello");
    // With a URL the name only names the file in messages.
    fs::remove(local);
    download("ignored", remoteFolderURL(config, "/in #1") + "a%20b.txt");
    EXPECT_EQ(read(local), "hello");
    waitFor([&](Completion done) { service.startDeleteFile("a b.txt", done); });
    waitFor([&](Completion done) { service.startDeleteDirectory("/in #1", done); });
    EXPECT_FALSE(fs::exists(root / "in #1"));
}

INSTANTIATE_TEST_SUITE_P(Servers, ServiceTest,
                         ::testing::Values(ServerProtocol::ftp, ServerProtocol::ftps,
                                           ServerProtocol::sftp),
                         protocolLabel);

// The rows as the editor sees them after the last change: status and detail.
struct Rows {
    std::vector<FTPService::TestStep> last;
    int calls = 0;
    FTPService::TestProgress progress() {
        return [this](const std::vector<FTPService::TestStep>& steps) {
            last = steps;
            ++calls;
        };
    }
    std::vector<TestStepStatus> statuses() const {
        std::vector<TestStepStatus> s;
        for (const auto& step : last) s.push_back(step.status);
        return s;
    }
};

using S = TestStepStatus;

using ConnectionTest = On<ServiceTest, ServerProtocol::ftp>;

TEST_F(ConnectionTest, aLiveServerPassesEveryRow) {
    write(root / "one.txt", "1");
    auto service = makeService();
    Rows rows;
    EXPECT_EQ(service.testConnectionSteps(rows.progress()), 1);
    ASSERT_EQ(rows.statuses(),
              (std::vector<S>{S::success, S::success, S::success, S::success, S::success}));
    EXPECT_EQ(rows.last[0].name, "DNS resolution");
    EXPECT_EQ(rows.last[3].detail, "1 file found");
    EXPECT_EQ(rows.last[4].name, "Checksum and listing");
    EXPECT_EQ(rows.last[4].detail, "SHA-256 checksums, MLSD listings");
    EXPECT_EQ(rows.calls, 10);  // a start and an end per row
}

TEST_F(ConnectionTest, eachFaultStopsAtItsOwnRow) {
    // The rows before `row` pass, `row` fails saying `detail`, the later ones never start.
    const auto failsAt = [&](const ConnectionConfig& config, std::size_t row,
                             const std::string& detail) {
        Rows rows;
        int code = 0;
        try {
            makeService(config).testConnectionSteps(rows.progress());
            ADD_FAILURE() << "no error: " << detail;
        } catch (const FTPError& e) {
            code = e.curlCode();
        }
        std::vector<S> expected(5, S::pending);
        std::fill_n(expected.begin(), row, S::success);
        expected[row] = S::failure;
        EXPECT_EQ(rows.statuses(), expected) << detail;
        EXPECT_EQ(rows.last.at(row).detail, detail);
        return code;
    };
    auto config = server->connectionConfig();
    config.password = "wrong";
    failsAt(config, 2, "Wrong username or password");
    config = server->connectionConfig();
    config.remotePath = "/nope";
    failsAt(config, 3, "Folder not accessible: /nope");
    config.host = "no-such-host.invalid";
    EXPECT_EQ(failsAt(config, 0, "Host 'no-such-host.invalid' not found"),
              CURLE_COULDNT_RESOLVE_HOST);

    // libcurl's own words, not only its code's: a port that hangs up on SSH at once.
    const int listener = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    ASSERT_EQ(::bind(listener, reinterpret_cast<sockaddr*>(&address), length), 0);
    ASSERT_EQ(::listen(listener, 4), 0);
    ::getsockname(listener, reinterpret_cast<sockaddr*>(&address), &length);
    std::thread hangsUp([listener] {
        for (int fd; (fd = ::accept(listener, nullptr, nullptr)) >= 0;) ::close(fd);
    });
    config = server->connectionConfig();
    config.transferProtocol = TransferProtocol::sftp;
    config.port = ntohs(address.sin_port);
    try {
        makeService(config).listFiles();
        ADD_FAILURE() << "no error";
    } catch (const FTPError& e) {
        EXPECT_NE(std::string(e.what()).find("ssh session"), std::string::npos) << e.what();
    }
    ::shutdown(listener, SHUT_RDWR);
    hangsUp.join();
    ::close(listener);

    server->stop();
    failsAt(server->connectionConfig(), 1,
            "Cannot connect to port " + std::to_string(server->port()));
}

}  // namespace
}  // namespace tarnel
