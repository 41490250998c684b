// Faults on the threads that drive transfers: none may end the process, and none may cost the
// connection a session turn.
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>

#include <cerrno>
#include <chrono>
#include <cstddef>
#include <future>
#include <iterator>
#include <system_error>
#include <thread>

#include <gtest/gtest.h>

#include "platform/testing/virtual_loop.h"
#include "platform/testing/wait_for.h"
#include "transfer/ftp_service.h"
#include "transfer_fixture.h"

namespace tarnel {
namespace {

namespace fs = std::filesystem;
using testing::ServerProtocol;

// From now on the calling thread can start no thread, as at the system's limit on threads.
void refuseNewThreads() {
    sock_filter filter[] = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, __NR_clone, 2, 0),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, __NR_clone3, 1, 0),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | EAGAIN),
    };
    sock_fprog program{static_cast<unsigned short>(std::size(filter)), filter};
    ASSERT_EQ(::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0), 0);
    ASSERT_EQ(::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program), 0);
}

// What a started download reports, waited for at most `limit`: a turn that is never given back
// shows as a download that never ends.
std::future<std::exception_ptr> startDownload(CurlTransferClient& client, const std::string& url,
                                              const fs::path& to) {
    auto result = std::make_shared<std::promise<std::exception_ptr>>();
    client.startDownload(url, to, 0, {}, [result](std::exception_ptr e) { result->set_value(e); });
    return result->get_future();
}

bool endsSoon(std::future<std::exception_ptr>& f) {
    return f.wait_for(std::chrono::seconds(20)) == std::future_status::ready;
}

struct DriverFaultTest : On<TransferTest, ServerProtocol::ftp> {
    VirtualLoop loop;
    LogService logService{loop, loop, dir / "tarnel.log"};
};

// The one session turn of the connection goes on to the next operation when a driver's thread
// cannot be made for an operation.
TEST_F(DriverFaultTest, anOperationThatCannotStartFailsAloneAndGivesItsTurnBack) {
    write(root / "a.txt", "a");
    auto config = server->connectionConfig();
    config.maxConcurrentDownloads = 1;
    auto client = makeClient(config);
    const std::string url = config.baseRemoteURL() + "a.txt";

    std::exception_ptr refused;
    std::thread([&] {
        refuseNewThreads();
        try {
            auto first = startDownload(*client, url, dir / "local" / "first");
            refused = endsSoon(first) ? first.get() : nullptr;
        } catch (...) {
            refused = std::current_exception();  // the caller is told either way
        }
    }).join();
    ASSERT_NE(refused, nullptr);
    EXPECT_THROW(std::rethrow_exception(refused), std::system_error);

    auto second = startDownload(*client, url, dir / "local" / "second");
    ASSERT_TRUE(endsSoon(second));
    EXPECT_EQ(second.get(), nullptr);
    EXPECT_EQ(read(dir / "local" / "second"), "a");
}

// A file system that cannot say whether the downloaded file is there (a network mount's EIO,
// ESTALE or EACCES) fails that download in its words, on the driver's thread; later ones go on.
TEST_F(DriverFaultTest, aFileSystemErrorAfterADownloadFailsItAlone) {
    write(root / "a.txt", std::string(100'000, 'a'));
    FTPService service(server->connectionConfig(), logService, makeClient());
    const fs::path mount = dir / "local" / "mount";
    fs::create_directories(mount);
    bool broken = false;
    // While the file is written, its folder moves away and a link to itself takes its place:
    // looking the file up then fails with ELOOP.
    const auto breakMount = [&](std::int64_t, std::int64_t) {
        if (std::exchange(broken, true)) return;
        fs::rename(mount, dir / "local" / "moved");
        fs::create_directory_symlink("mount", mount);
    };
    try {
        waitFor([&](Completion done) {
            service.startDownloadFile("a.txt", mount / "a.txt", 0, breakMount, std::nullopt,
                                      nullptr, done);
        });
        ADD_FAILURE() << "no error";
    } catch (const FTPError& e) {
        EXPECT_EQ(e.kind(), FTPError::Kind::downloadFailed);
        EXPECT_NE(e.errorDescription().find("Too many levels of symbolic links"),
                  std::string::npos)
            << e.errorDescription();
    }
    waitFor([&](Completion done) {
        service.startDownloadFile("a.txt", dir / "local" / "a.txt", 0, {}, std::nullopt, nullptr,
                                  done);
    });
    EXPECT_EQ(fs::file_size(dir / "local" / "a.txt"), 100'000u);
}

}  // namespace
}  // namespace tarnel
