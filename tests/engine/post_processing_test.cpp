// Decompression and post-actions after real downloads through the engine, with real gzip files
// and real launched programs.
#include <chrono>
#include <fstream>
#include <thread>

#include <gtest/gtest.h>
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
case("two.gz", gz(b"first member\n") + gz(b"second member\n"), b"first member\n")
whole = gz(text)
case("cut.gz", whole[: len(whole) // 2], b"")
c = zlib.compressobj(9, zlib.DEFLATED, -15)
body = c.compress(text) + c.flush()
head = b"\x1f\x8b\x08" + bytes([2 | 4 | 8 | 16]) + b"\0\0\0\0\0\x03" + struct.pack("<H", 5) + b"ab\x03xy"
head += b"orig.bin\0" + b"a comment\0"
head += struct.pack("<H", zlib.crc32(head) & 0xFFFF)
case("fields.gz", head + body + struct.pack("<II", zlib.crc32(text), len(text)), text)
case("fake.gz", b"this is not gzip data, only text", b"")
case("tiny.gz", b"\x1f\x8b\x08\0\0\0\0\0\0\x03", b"")
case("unended.gz", b"\x1f\x8b\x08\x08\0\0\0\0\0\x03name without its zero byte", b"")
case("blocked.gz", gz(b"cannot land\n"), b"")
)PY";

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

TEST_F(PostProcessingTest, GzipFilesUnpackBesideThemselvesAndBadOnesStayWithAnErrorRow) {
    const fs::path cases = dir / "cases";
    fs::create_directories(cases);
    std::ofstream(dir / "make_cases.py") << makeGzipCases;
    const std::string command =
        "/usr/bin/python3 " + (dir / "make_cases.py").string() + " " + cases.string();
    ASSERT_EQ(std::system(command.c_str()), 0);
    for (const auto& entry : fs::directory_iterator(cases))
        if (entry.path().extension() != ".expected" && entry.path().extension() != ".txt")
            server->files[entry.path().filename().string()] = readFile(entry.path());
    fs::create_directories(inbox / "blocked");  // the target name is taken by a folder
    config.autoDecompress = true;
    settings.setNotificationsEnabled(true);
    auto engine = runEngine();

    for (std::string name : {"named.gz", "UPPER.GZ", "two.gz", "fields.gz"}) {
        const std::string plain = name.substr(0, name.size() - 3);
        EXPECT_EQ(readFile(inbox / plain), readFile(cases / (name + ".expected"))) << name;
        EXPECT_FALSE(fs::exists(inbox / name)) << name;
    }
    // Cut short: what the body held up to the cut, without complaint.
    const std::string cut = readFile(inbox / "cut");
    const std::string whole = readFile(cases / "fields.gz.expected");
    EXPECT_GT(cut.size(), 0u);
    EXPECT_LT(cut.size(), whole.size());
    EXPECT_EQ(cut, whole.substr(0, cut.size()));
    EXPECT_FALSE(fs::exists(inbox / "cut.gz"));
    EXPECT_TRUE(hasLogLine("[Test] Decompressed: cut.gz \u2192 cut"));

    for (const char* name : {"fake.gz", "tiny.gz", "unended.gz"}) {
        EXPECT_TRUE(fs::exists(inbox / name));
        EXPECT_TRUE(hasLogLine(std::string("WARN [Test] Gzip decompress failed: ") + name));
    }
    EXPECT_TRUE(fs::exists(inbox / "blocked.gz"));
    EXPECT_TRUE(hasLogLine("WARN [Test] Decompress error: Could not write '" +
                           (inbox / "blocked").string() + "': Is a directory"));

    // Each transfer keeps its own success row; each failure adds an error row and a notice.
    std::map<std::string, std::string> errors;  // file name: message
    for (const auto& h : history.entries()()) {
        if (h.status != TransferStatus::error)
            continue;
        errors[h.filename] = h.errorMessage.value_or("");
        EXPECT_EQ(h.destinationPath, inbox.string());
        EXPECT_EQ(h.sizeBytes, static_cast<std::int64_t>(fs::file_size(inbox / h.filename)));
    }
    EXPECT_EQ(history.entries()().size(), 13u);
    EXPECT_EQ(engine->totalTransferred()(), 9);
    ASSERT_EQ(errors.size(), 4u);
    EXPECT_EQ(errors["fake.gz"], "Failed to decompress fake.gz");
    EXPECT_EQ(errors["unended.gz"], "Failed to decompress unended.gz");
    EXPECT_TRUE(errors["blocked.gz"].starts_with("Decompress error: Could not write"));
    EXPECT_EQ(std::count_if(notifier.posted.begin(), notifier.posted.end(),
                            [](const auto& p) { return p.title == "Tarnel: Connection error"; }),
              4);
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

// Zeros that inflate to 4 GiB, from a file of a few MB, unpacked by a child process whose memory
// is capped far below that (address space, where the address sanitizer leaves it alone, and the
// peak resident size in any case).
TEST(GzipStreaming, FourGibibytesInflateInFixedMemory) {
    constexpr std::uint64_t inflated = std::uint64_t{4} << 30;
    constexpr long peakLimitKiB = 256 * 1024;
    const fs::path dir = EngineFixture::makeTempDir();
    const fs::path gz = dir / "zeros.gz", plain = dir / "zeros";
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

    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
#ifndef __SANITIZE_ADDRESS__
        const rlimit cap{std::uint64_t{1} << 30, std::uint64_t{1} << 30};
        ::setrlimit(RLIMIT_AS, &cap);
#endif
        bool ok = false;
        try {
            ok = gunzipFile(gz, plain);
        } catch (...) {
        }
        rusage usage{};
        ::getrusage(RUSAGE_SELF, &usage);
        ::_exit(!ok ? 1 : usage.ru_maxrss > peakLimitKiB ? 2 : 0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "child status " << status;
    std::error_code ec;
    EXPECT_EQ(fs::file_size(plain, ec), inflated);
    fs::remove_all(dir, ec);
}

}  // namespace
}  // namespace tarnel::testing
