// Throughput of CurlTransferClient beside the curl command-line tool on the same server in the
// same run, the effect of a larger libcurl receive buffer, and the parse rate of LIST text.
//
//   transfer_bench [size-in-MiB, default 1024] [rounds, default 3] [parse|ftp|sftp, default all]

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include <curl/curl.h>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/testing/wait_for.h"
#include "servers/test_server.h"
#include "transfer/curl_transfer_client.h"
#include "transfer/listing_parser.h"

extern char** environ;

namespace {

namespace fs = std::filesystem;
using tarnel::testing::ServerProtocol;
using Clock = std::chrono::steady_clock;

double secondsOf(const std::function<void()>& fn) {
    const auto start = Clock::now();
    fn();
    return std::chrono::duration<double>(Clock::now() - start).count();
}

// The curl command-line tool fetching `url` into `to`; false if it failed.
bool curlTool(const tarnel::testing::TestServer& server, const std::string& url,
              const fs::path& to) {
    std::vector<std::string> args = {
        "curl", "-sS", "-k", "-o", to.string(), "-u", server.user() + ":" + server.password(), url};
    std::vector<char*> argv;
    for (auto& a : args) {
        argv.push_back(a.data());
    }
    argv.push_back(nullptr);
    pid_t pid = -1;
    if (posix_spawnp(&pid, "curl", nullptr, nullptr, argv.data(), environ) != 0) {
        return false;
    }
    int status = 0;
    waitpid(pid, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

size_t toFile(char* data, size_t size, size_t count, void* file) {
    return std::fwrite(data, size, count, static_cast<FILE*>(file));
}

// libcurl alone, with the client's transfer options and a chosen receive buffer (0: libcurl's
// default), to see whether a larger buffer pays.
bool rawLibcurl(const tarnel::ConnectionConfig& config, const std::string& url, const fs::path& to,
                long bufferSize) {
    CURL* h = curl_easy_init();
    FILE* f = std::fopen(to.c_str(), "wb");
    curl_easy_setopt(h, CURLOPT_URL, url.c_str());
    curl_easy_setopt(h, CURLOPT_USERPWD, (config.username + ":" + config.password).c_str());
    curl_easy_setopt(h, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(h, CURLOPT_FTP_USE_EPSV, 1L);
    curl_easy_setopt(h, CURLOPT_SSH_AUTH_TYPES, static_cast<long>(CURLSSH_AUTH_ANY));
    curl_easy_setopt(h, CURLOPT_WRITEFUNCTION, toFile);
    curl_easy_setopt(h, CURLOPT_WRITEDATA, f);
    if (bufferSize > 0) {
        curl_easy_setopt(h, CURLOPT_BUFFERSIZE, bufferSize);
    }
    const CURLcode code = curl_easy_perform(h);
    std::fclose(f);
    curl_easy_cleanup(h);
    return code == CURLE_OK;
}

void report(const char* what, std::int64_t bytes, const std::vector<double>& seconds) {
    double best = seconds.front(), sum = 0;
    for (double s : seconds) {
        best = std::min(best, s);
        sum += s;
    }
    const double mib = static_cast<double>(bytes) / (1 << 20);
    std::printf("  %-34s best %8.1f MiB/s   mean %8.1f MiB/s\n", what, mib / best,
                mib * seconds.size() / sum);
}

void benchTransfer(ServerProtocol protocol, const char* label, std::int64_t bytes, int rounds) {
    // In memory when the machine has it, so the disk sets the pace of none of the contenders.
    const fs::path base =
        fs::is_directory("/dev/shm") ? fs::path("/dev/shm") : fs::temp_directory_path();
    const fs::path dir = base / ("tarnel-bench-" + std::string(label));
    fs::remove_all(dir);
    fs::create_directories(dir / "root");
    {
        // A sparse file: the server reads it from memory, so the disk does not set the pace.
        const int fd = ::open((dir / "root" / "big.bin").c_str(), O_CREAT | O_WRONLY, 0644);
        if (fd < 0 || ::ftruncate(fd, bytes) != 0) {
            std::perror("big.bin");
            return;
        }
        ::close(fd);
    }
    tarnel::testing::TestServer server({protocol, dir / "root"});
    const auto config = server.connectionConfig();
    const std::string url = config.baseRemoteURL() + "big.bin";
    const fs::path local = dir / "local.bin";
    tarnel::CurlTransferClient client(config, dir / "known_hosts");

    bool ok = true;
    struct Contender {
        const char* name;
        std::function<bool()> run;
        std::vector<double> seconds = {};
    };
    const auto download = [&] {
        tarnel::waitFor([&](tarnel::Completion done) { client.startDownload(url, local, 0, {}, done); });
    };
    std::vector<Contender> contenders = {
        {"CurlTransferClient",
         [&] {
             download();
             return true;
         }},
        {"CurlTransferClient, new session",
         [&] {
             client.closeIdleConnections();
             download();
             return true;
         }},
        {"curl command-line tool", [&] { return curlTool(server, url, local); }},
        {"libcurl, default buffer", [&] { return rawLibcurl(config, url, local, 0); }},
        {"libcurl, 512 KiB buffer", [&] { return rawLibcurl(config, url, local, 512 * 1024); }},
    };
    for (int r = 0; r < rounds; ++r) {
        // Interleaved and rotated, so a drift of the machine touches every contender alike.
        for (std::size_t i = 0; i < contenders.size(); ++i) {
            auto& c = contenders[(i + r) % contenders.size()];
            c.seconds.push_back(secondsOf([&] { ok = c.run() && ok; }));
            ok = ok && fs::file_size(local) == static_cast<std::uintmax_t>(bytes);
            fs::remove(local);
        }
    }
    std::printf("%s, %lld MiB from the Python test server on 127.0.0.1, %d rounds%s\n", label,
                static_cast<long long>(bytes >> 20), rounds, ok ? "" : "  (A TRANSFER FAILED)");
    for (const auto& c : contenders) {
        report(c.name, bytes, c.seconds);
    }
    fs::remove_all(dir);
}

void benchParse() {
    std::string text;
    std::mt19937 gen(7);
    for (int i = 0; i < 100'000; ++i) {
        text += "-rw-r--r--    1 1000     1000     " + std::to_string(gen() % 100'000'000) +
                " Mar  7 09:12 photo_" + std::to_string(i) + " final.jpg\r\n";
    }
    std::size_t rows = 0;
    const int repeats = 10;
    const double s = secondsOf([&] {
        for (int i = 0; i < repeats; ++i) {
            rows += tarnel::parseListing(text, false).size();
        }
    });
    std::printf("LIST parse, 100,000 rows (%.1f MiB): %.1f ms a listing, %.2f million rows/s%s\n",
                text.size() / 1048576.0, 1000 * s / repeats, rows / s / 1e6,
                rows == 100'000u * repeats ? "" : "  (ROWS LOST)");
}

}  // namespace

int main(int argc, char** argv) {
    const std::int64_t mib = argc > 1 ? std::stoll(argv[1]) : 1024;
    const int rounds = argc > 2 ? std::stoi(argv[2]) : 3;
    const std::string only = argc > 3 ? argv[3] : "";
    if (only.empty() || only == "parse") {
        benchParse();
    }
    if (only.empty() || only == "ftp") {
        benchTransfer(ServerProtocol::ftp, "FTP", mib << 20, rounds);
    }
    if (only.empty() || only == "sftp") {
        benchTransfer(ServerProtocol::sftp, "SFTP", mib << 20, rounds);
    }
}
