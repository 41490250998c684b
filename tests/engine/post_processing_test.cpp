// Decompression and post-actions after real downloads through the engine, with real gzip files
// and real launched programs.
#include <chrono>
#include <fstream>
#include <functional>
#include <thread>

#include <gtest/gtest.h>
#include <signal.h>
#include <stdio.h>
#include <stdlib.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <zlib.h>

#include "engine/gzip_decompression.h"
#include "engine_fixture.h"

namespace tarnel::testing {
namespace {

using namespace std::chrono_literals;
namespace fs = std::filesystem;

// Writes each case as NAME (compressed) and NAME.expected (what it must unpack to): from the
// gzip tool, with a header built by hand where the tool cannot write the field.
constexpr const char* makeGzipCases = R"PY(
import os, struct, subprocess, sys, zlib
os.chdir(sys.argv[1])
def gz(data, *args):
    return subprocess.run(["gzip", "-c", *args], input=data, stdout=subprocess.PIPE, check=True).stdout
def case(name, packed, plain):
    open(name, "wb").write(packed); open(name + ".expected", "wb").write(plain)
text = b"".join(b"line %d of the report\n" % i for i in range(40000))
open("named.txt", "wb").write(b"named body\n")
case("named.gz", subprocess.run(["gzip", "-c", "-N", "named.txt"], stdout=subprocess.PIPE, check=True).stdout, b"named body\n")
case("UPPER.GZ", gz(b"upper body\n", "-n"), b"upper body\n")
# Members one after another, the last one empty, as block-compressing tools write them.
case("members.gz", gz(b"first member\n") + gz(b"second member\n") + gz(b""), b"first member\nsecond member\n")
whole = gz(text)
case("cut.gz", whole[: len(whole) // 2], b"")
case("padded.gz", gz(b"padded body\n") + bytes(16), b"padded body\n")
case("trailing.gz", gz(b"trailing body\n") + b"junk", b"")
case("crc.gz", whole[:-8] + struct.pack("<II", zlib.crc32(text) ^ 1, len(text)), b"")
c = zlib.compressobj(9, zlib.DEFLATED, -15)
body = c.compress(text) + c.flush()
head = b"\x1f\x8b\x08" + bytes([2 | 4 | 8 | 16]) + b"\0\0\0\0\0\x03" + struct.pack("<H", 5) + b"ab\x03xy"
head += b"orig.bin\0" + b"a comment\0"
head += struct.pack("<H", zlib.crc32(head) & 0xFFFF)
case("fields.gz", head + body + struct.pack("<II", zlib.crc32(text), len(text)), text)
case("fake.gz", b"this is not gzip data, only text", b"")
case("tiny.gz", b"\x1f\x8b\x08\0\0\0\0\0\0\x03", b"")
case("unended.gz", b"\x1f\x8b\x08\x08\0\0\0\0\0\x03name without its zero byte", b"")
)PY";

// `data` as one gzip member.
std::string gzipped(const std::string& data) {
    z_stream stream{};
    deflateInit2(&stream, 6, Z_DEFLATED, MAX_WBITS + 16, 8, Z_DEFAULT_STRATEGY);
    std::string out(deflateBound(&stream, data.size()), '\0');
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(data.data()));
    stream.avail_in = static_cast<uInt>(data.size());
    stream.next_out = reinterpret_cast<Bytef*>(out.data());
    stream.avail_out = static_cast<uInt>(out.size());
    deflate(&stream, Z_FINISH);
    out.resize(out.size() - stream.avail_out);
    deflateEnd(&stream);
    return out;
}

// The MD5 of `data` by the system's own tool.
std::string md5Hex(const std::string& data) {
    const fs::path file = fs::temp_directory_path() / ("tarnel-md5-" + Uuid::random().toString());
    std::ofstream(file, std::ios::binary) << data;
    std::string digest(32, '\0');
    if (FILE* p = ::popen(("md5sum '" + file.string() + "'").c_str(), "r")) {
        digest.resize(std::fread(digest.data(), 1, digest.size(), p));
        ::pclose(p);
    }
    fs::remove(file);
    return digest;
}

struct PostProcessingTest : EngineFixture {
    fs::path inbox = dir / "inbox";
    fs::path launches = dir / "launches";
    fs::path bin = dir / "bin";
    std::string savedPath = std::getenv("PATH") ? std::getenv("PATH") : "";

    PostProcessingTest() {
        fs::create_directories(launches);
        fs::create_directories(bin);
        // Records its own name and each argument on a line, then moves the record into place.
        const fs::path recorder = bin / "record";
        std::ofstream(recorder) << "#!/bin/sh\nout=\"" << launches.string()
                                << "/$$\"\n{ basename \"$0\"; for a in \"$@\"; do printf '%s\\n' "
                                   "\"$a\"; done; } > \"$out.part\" && mv \"$out.part\" "
                                   "\"$out.args\"\n";
        fs::permissions(recorder, fs::perms::owner_all);
        // The desktop's opener and launcher, as far as this program can tell.
        fs::create_symlink(recorder, bin / "xdg-open");
        fs::create_symlink(recorder, bin / "gio");
        ::setenv("PATH", (bin.string() + ":" + savedPath).c_str(), 1);
    }
    ~PostProcessingTest() override { ::setenv("PATH", savedPath.c_str(), 1); }

    // Polls until the files have settled and been fetched (two stable checks).
    std::shared_ptr<SyncEngine> runEngine() {
        auto engine = makeEngine();
        engine->start();
        loop.advance(90s);
        loop.runUntilIdle();
        return engine;
    }

    // The launched programs' records, sorted: each is the program's name, then its arguments.
    // The programs run on their own, so this waits for them, within a generous limit.
    std::vector<std::vector<std::string>> launched(std::size_t count) {
        std::vector<std::vector<std::string>> records;
        for (auto deadline = std::chrono::steady_clock::now() + 10s;
             std::chrono::steady_clock::now() < deadline; std::this_thread::sleep_for(10ms)) {
            records.clear();
            for (const auto& entry : fs::directory_iterator(launches)) {
                if (entry.path().extension() != ".args")
                    continue;
                std::vector<std::string> lines;
                std::ifstream in(entry.path());
                for (std::string line; std::getline(in, line);)
                    lines.push_back(line);
                records.push_back(lines);
            }
            if (records.size() >= count)
                break;
        }
        std::sort(records.begin(), records.end());
        return records;
    }
};

TEST_F(PostProcessingTest, GzipFilesUnpackWholeOrNotAtAllAndNeverTouchAFileThatIsThere) {
    const fs::path cases = dir / "cases";
    fs::create_directories(cases);
    std::ofstream(dir / "make_cases.py") << makeGzipCases;
    const std::string command =
        "/usr/bin/python3 " + (dir / "make_cases.py").string() + " " + cases.string();
    ASSERT_EQ(std::system(command.c_str()), 0);
    for (const auto& entry : fs::directory_iterator(cases))
        if (entry.path().extension() != ".expected" && entry.path().extension() != ".txt")
            server->files[entry.path().filename().string()] = readFile(entry.path());
    // Yesterday's files under the names that a bad archive would have inflated to.
    fs::create_directories(inbox);
    for (const char* name : {"cut", "crc"}) std::ofstream(inbox / name) << "yesterday's " << name;
    config.autoDecompress = true;
    settings.setNotificationsEnabled(true);
    auto engine = runEngine();

    for (std::string name : {"named.gz", "UPPER.GZ", "members.gz", "fields.gz", "padded.gz"}) {
        const std::string plain = name.substr(0, name.size() - 3);
        EXPECT_EQ(readFile(inbox / plain), readFile(cases / (name + ".expected"))) << name;
        EXPECT_FALSE(fs::exists(inbox / name)) << name;
    }
    EXPECT_TRUE(hasLogLine("[Test] Decompressed: members.gz \u2192 members"));

    const std::map<std::string, std::string> reasons = {
        {"fake.gz", "not gzip data"},
        {"tiny.gz", "the file is cut short"},
        {"unended.gz", "the file is cut short"},
        {"cut.gz", "the file is cut short"},
        {"crc.gz", "the data of member 1 does not match its CRC-32"},
        {"trailing.gz", "data that is not gzip follows the last member"}};
    for (const auto& [name, reason] : reasons) {
        EXPECT_TRUE(readFile(inbox / name) == readFile(cases / name)) << name << " changed";
        EXPECT_TRUE(hasLogLine("WARN [Test] Gzip decompress failed: " + name + " \u2014 " + reason))
            << name;
    }
    for (const char* name : {"cut", "crc"})
        EXPECT_EQ(readFile(inbox / name), std::string("yesterday's ") + name);
    for (const auto& entry : fs::directory_iterator(inbox))
        EXPECT_NE(entry.path().extension(), ".tarnel-partial") << "left behind: " << entry.path();

    // Each transfer keeps its own success row; each failure adds an error row and a notice.
    std::map<std::string, std::string> errors;  // file name: message
    for (const auto& h : history.entries()()) {
        if (h.status != TransferStatus::error)
            continue;
        errors[h.filename] = h.errorMessage.value_or("");
        EXPECT_EQ(h.destinationPath, inbox.string());
        EXPECT_EQ(h.sizeBytes, static_cast<std::int64_t>(fs::file_size(inbox / h.filename)));
    }
    EXPECT_EQ(history.entries()().size(), 17u);
    EXPECT_EQ(engine->totalTransferred()(), 11);
    ASSERT_EQ(errors.size(), 6u);
    EXPECT_EQ(errors["fake.gz"], "Failed to decompress fake.gz");
    EXPECT_EQ(errors["cut.gz"], "Failed to decompress cut.gz");
    EXPECT_EQ(std::count_if(notifier.posted.begin(), notifier.posted.end(),
                            [](const auto& p) { return p.title == "Tarnel: Connection error"; }),
              6);
}

// A daily archive of one name: each day's file lands beside the one before, as a download does.
TEST_F(PostProcessingTest, EachDaysArchiveInflatesBesideTheDayBefore) {
    server->files = {{"report.csv.gz", gzipped("monday\n")}, {"notes.txt", "plain"}};
    config.autoDecompress = true;
    config.checksumVerification = true;
    auto engine = runEngine();
    ASSERT_EQ(readFile(inbox / "report.csv"), "monday\n");
    // Readable by whom a downloaded file is readable by, though inflated into a private file.
    EXPECT_EQ(fs::status(inbox / "report.csv").permissions(),
              fs::status(inbox / "notes.txt").permissions());
    EXPECT_TRUE(hasLogLine("[Test] MD5: report.csv.gz = " + md5Hex(gzipped("monday\n"))));

    server->files = {{"report.csv.gz", gzipped("tuesday\n")}};
    loop.advance(90s);
    loop.runUntilIdle();
    EXPECT_EQ(readFile(inbox / "report.csv"), "monday\n");
    EXPECT_EQ(readFile(inbox / "report (1).csv"), "tuesday\n");
    EXPECT_TRUE(hasLogLine("[Test] Decompressed: report.csv.gz \u2192 report (1).csv"));
    EXPECT_FALSE(fs::exists(inbox / "report.csv.gz"));
}

TEST_F(PostProcessingTest, CommandsGetThePathWhereThePlaceholderStandsAloneOncePerFile) {
    server->files = {{"a.txt", "aaa"}, {"b.txt", "bbb"}};
    config.postActionEnabled = true;
    config.postActionPath = (bin / "record").string() + " {filepath}  --in={filepath} {filepath}";
    auto engine = runEngine();

    const std::vector<std::vector<std::string>> expected = {
        {"record", (inbox / "a.txt").string(), "", "--in={filepath}", (inbox / "a.txt").string()},
        {"record", (inbox / "b.txt").string(), "", "--in={filepath}", (inbox / "b.txt").string()},
    };
    EXPECT_EQ(launched(2), expected);
    EXPECT_EQ(countLogLines("[Test] Running post-action: " + config.postActionPath), 1);
}

TEST_F(PostProcessingTest, AFailedLaunchIsLoggedForItsFileAndTheOthersStillRun) {
    server->files = {{"a.txt", "aaa"}, {"b.txt", "bbb"}};
    config.postActionEnabled = true;
    config.postActionPath = (dir / "missing").string() + " {filepath}";
    auto engine = runEngine();
    EXPECT_EQ(countLogLines("ERR [Test] Post-action failed: Could not launch '" +
                            (dir / "missing").string() + "': No such file or directory"),
              2);
    EXPECT_EQ(engine->totalTransferred()(), 2);
}

TEST_F(PostProcessingTest, ApplicationsGetTheWholeBatchAndDocumentsAndZipsOpenOnTheDesktop) {
    server->files = {{"pack.zip", "PK"}, {"c.txt", "ccc"}};
    config.autoDecompress = true;
    config.postActionEnabled = true;
    // Ends in ".desktop": an application, whose path is taken as it stands, placeholder and all.
    config.postActionPath = "/opt/{filepath}/viewer.desktop";
    auto first = runEngine();
    auto records = launched(2);
    ASSERT_EQ(records.size(), 2u);
    // The files come in the order they finished.
    std::sort(records[0].begin() + 3, records[0].end());
    EXPECT_EQ(records[0], (std::vector<std::string>{
                              "gio", "launch", "/opt/{filepath}/viewer.desktop",
                              (inbox / "c.txt").string(), (inbox / "pack.zip").string()}));
    EXPECT_EQ(records[1], (std::vector<std::string>{"xdg-open", (inbox / "pack.zip").string()}));
    EXPECT_TRUE(fs::exists(inbox / "pack.zip"));  // the desktop unpacks it, if anything does
    EXPECT_TRUE(hasLogLine("[Test] Opened ZIP with system handler: pack.zip"));

    first->stop();
    fs::remove_all(launches);
    fs::create_directories(launches);
    server->files = {{"d.txt", "ddd"}};
    config.autoDecompress = false;
    config.postActionPath = "/srv/report.pdf";
    auto second = runEngine();
    EXPECT_EQ(launched(1),
              (std::vector<std::vector<std::string>>{{"xdg-open", "/srv/report.pdf"}}));
}

// What `fn` returns, run in a forked child so that the limits it sets stay there; -1 if it did
// not end by itself.
int exitStatusInChild(const std::function<int()>& fn) {
    const pid_t child = ::fork();
    if (child == 0) ::_exit(fn());
    int status = 0;
    ::waitpid(child, &status, 0);
    return child > 0 && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

std::size_t filesIn(const fs::path& dir) {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(dir), {}));
}

// Zeros that inflate to 4 GiB, from a file of a few MB, whose trailer holds the length modulo
// 2^32 (zero), unpacked in memory capped far below that (address space, where the address
// sanitizer leaves it alone, and the peak resident size in any case).
TEST(GzipStreaming, FourGibibytesInflateInFixedMemory) {
    constexpr std::uint64_t inflated = std::uint64_t{4} << 30;
    constexpr long peakLimitKiB = 256 * 1024;
    // In memory where there is a tmpfs: 4 GiB synced to this machine's disk take most of a minute.
    fs::path dir = "/dev/shm";
    dir = fs::is_directory(dir) ? dir / ("tarnel-test-" + Uuid::random().toString())
                                : EngineFixture::makeTempDir();
    fs::create_directories(dir);
    const fs::path gz = dir / "zeros.gz";
    {
        // After a full flush deflate forgets what came before, so every further MiB of zeros
        // compresses to the same bytes: compressed once, written 4,096 times.
        z_stream stream{};
        ASSERT_EQ(deflateInit2(&stream, 9, Z_DEFLATED, -15, 9, Z_DEFAULT_STRATEGY), Z_OK);
        std::vector<unsigned char> zeros(1 << 20), output(1 << 20);
        const auto compress = [&](std::size_t size, int flush) {
            stream.next_in = zeros.data();
            stream.avail_in = static_cast<uInt>(size);
            stream.next_out = output.data();
            stream.avail_out = static_cast<uInt>(output.size());
            deflate(&stream, flush);
            return std::string(output.begin(), output.end() - stream.avail_out);
        };
        const std::string first = compress(zeros.size(), Z_FULL_FLUSH);
        const std::string block = compress(zeros.size(), Z_FULL_FLUSH);
        const std::string last = compress(0, Z_FINISH);
        deflateEnd(&stream);
        uLong crc = crc32(0, zeros.data(), static_cast<uInt>(zeros.size())), whole = crc;
        for (int n = 1; n < 4096; ++n) whole = crc32_combine(whole, crc, zeros.size());
        std::ofstream out(gz, std::ios::binary);
        out << std::string("\x1f\x8b\x08\0\0\0\0\0\0\x03", 10) << first;
        for (int n = 1; n < 4096; ++n) out << block;
        const unsigned char trailer[8] = {
            static_cast<unsigned char>(whole), static_cast<unsigned char>(whole >> 8),
            static_cast<unsigned char>(whole >> 16), static_cast<unsigned char>(whole >> 24),
            0, 0, 0, 0};  // the length modulo 2^32
        out << last << std::string(reinterpret_cast<const char*>(trailer), 8);
    }
    ASSERT_LT(fs::file_size(gz), 10'000'000u);

    // In a child whose memory is capped far below what the file inflates to.
    const int status = exitStatusInChild([&] {
#ifndef __SANITIZE_ADDRESS__
        const rlimit cap{std::uint64_t{1} << 30, std::uint64_t{1} << 30};
        ::setrlimit(RLIMIT_AS, &cap);
#endif
        std::error_code ec;
        if (fs::file_size(gunzipBeside(gz), ec) != inflated) return 1;
        rusage usage{};
        ::getrusage(RUSAGE_SELF, &usage);
        return usage.ru_maxrss > peakLimitKiB ? 2 : 0;
    });
    EXPECT_EQ(status, 0);
    EXPECT_EQ(filesIn(dir), 2u);
    std::error_code ec;
    fs::remove_all(dir, ec);
}

// A disk that fills up (here: a cap on the size of files this process writes) while a file
// inflates leaves the archive and the file of the name it would inflate to as they were.
TEST(GzipStreaming, AFullDiskLeavesEveryFileAsItWas) {
    const fs::path dir = EngineFixture::makeTempDir();
    const fs::path gz = dir / "big.gz";
    const std::string packed = gzipped(std::string(3 << 20, 'x'));
    std::ofstream(gz, std::ios::binary) << packed;
    std::ofstream(dir / "big") << "older";
    const int status = exitStatusInChild([&] {
        ::signal(SIGXFSZ, SIG_IGN);
        const rlimit cap{1 << 20, 1 << 20};
        ::setrlimit(RLIMIT_FSIZE, &cap);
        try {
            gunzipBeside(gz);
        } catch (const GzipFileError& e) {
            return e.description.ends_with("File too large") ? 0 : 2;
        }
        return 1;
    });
    EXPECT_EQ(status, 0);
    EXPECT_EQ(filesIn(dir), 2u);
    EXPECT_EQ(readFile(dir / "big"), "older");
    EXPECT_EQ(readFile(gz), packed);
    std::error_code ec;
    fs::remove_all(dir, ec);
}

}  // namespace
}  // namespace tarnel::testing
