#include "transfer/listing_parser.h"

#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

#include "transfer/digest.h"
#include "transfer/server_features.h"

namespace tarnel {
namespace {

using Entries = std::vector<FTPFileEntry>;

FTPFileEntry file(std::string name, std::int64_t size) {
    return {std::move(name), size, false, ""};
}
FTPFileEntry dir(std::string name, std::int64_t size) {
    return {std::move(name), size, true, ""};
}

TEST(ListingParser, readsUnixServersAsTheySendIt) {
    // vsftpd: numeric owners, CRLF line ends.
    const char* vsftpd =
        "drwxr-xr-x    2 1000     1000         4096 Jan 15  2024 archive\r\n"
        "-rw-r--r--    1 1000     1000         1024 Jan 15 10:30 report.pdf\r\n";
    EXPECT_EQ(parseListing(vsftpd, true),
              (Entries{dir("archive", 4096), file("report.pdf", 1024)}));
    EXPECT_EQ(parseListing(vsftpd, false), (Entries{file("report.pdf", 1024)}));

    // ProFTPD: a summary line, names with blanks, a link, a 64-bit size.
    const char* proftpd =
        "total 102412\n"
        "-rw-r--r--   1 ftp      ftp      6442450944 Mar  7 09:12 big  file.bin\n"
        "lrwxrwxrwx   1 ftp      ftp            12 Mar  7 09:12 latest -> big  file.bin\n"
        "-rw-r--r--   1 ftp      ftp            10 Mar  7 09:12 a -> b\n";
    EXPECT_EQ(parseListing(proftpd, false),
              (Entries{file("big  file.bin", 6442450944), file("latest", 12), file("a", 10)}));

    // Pure-FTPd lists "." and ".."; hidden files, devices and pipes stay out too.
    const char* pureftpd =
        "drwxr-xr-x    2 1001       1001             4096 Mar  7 09:12 .\n"
        "drwxr-xr-x    3 0          0                4096 Mar  7 09:00 ..\n"
        "-rw-r--r--    1 1001       1001               10 Mar  7 09:12 .hidden\n"
        "crw-rw-rw-    1 0          0              1,   3 Mar  7 09:12 null\n"
        "prw-r--r--    1 1001       1001                0 Mar  7 09:12 fifo\n"
        "-rw-r--r--    1 1001       1001          5242880 Mar  7 09:12 photo.jpg\n";
    EXPECT_EQ(parseListing(pureftpd, true), (Entries{file("photo.jpg", 5242880)}));
}

TEST(ListingParser, dropsRowsWhoseColumnsDoNotFit) {
    // No group column: the size column is the month, so the row is dropped, and the DOS reader
    // cannot save it.
    EXPECT_EQ(parseUnixLine("-rw-r--r-- 1 owner 1024 Jan 15 10:30 my file.txt"), std::nullopt);
    EXPECT_EQ(parseListing("-rw-r--r-- 1 ftp ftp abc Jan 15 10:30 x.txt", true), Entries{});
    EXPECT_EQ(parseUnixLine("-rw-r--r-- 1 ftp ftp 10 Jan 15 10:30"), std::nullopt);
    // Tabs do not split columns.
    EXPECT_EQ(parseUnixLine("-rw-r--r--\t1 ftp ftp 10 Jan 15 10:30 x"), std::nullopt);
    EXPECT_EQ(parseUnixLine("-rw-r--r-- 1 ftp ftp +10 Jan 15 10:30 x"), file("x", 10));
}

TEST(ListingParser, readsDosRowsOfWindowsServers) {
    const char* iis =
        "03-07-24  09:12AM       <DIR>          Uploads\r\n"
        "03-07-24  09:12AM       <DIR>          .git\r\n"
        "03-07-24  09:13PM              1048576 data  2024.csv\r\n"
        "03-07-24  09:13PM                  abc broken.csv\r\n";
    // Runs of blanks in a DOS name collapse to one.
    EXPECT_EQ(parseListing(iis, true),
              (Entries{dir("Uploads", 0), file("data 2024.csv", 1048576)}));
    EXPECT_EQ(parseDosLine("2024-03-07 09:12 10 x"), std::nullopt);
}

TEST(ListingParser, namesAndHeaders) {
    // Some servers answer a name list with full paths; only dot names go.
    EXPECT_EQ(parseNameList("/in/a.txt\r\n/in/b c.txt\r\n.\r\n..\r\n  \r\n.profile\n"),
              (std::vector<std::string>{"/in/a.txt", "/in/b c.txt"}));
    // U+2028 ends a line; U+00A0 is trimmed like a blank.
    EXPECT_EQ(parseNameList("\u00A0caf\u00E9.txt\u2028b.txt\u00A0"),
              (std::vector<std::string>{"caf\u00E9.txt", "b.txt"}));
    EXPECT_EQ(parseContentLength("Last-Modified: x\r\nCONTENT-LENGTH: 42\r\n"), 42);
    EXPECT_EQ(parseContentLength("Content-Length:\r\nContent-Length: 42\r\n"), std::nullopt);
    EXPECT_EQ(parseContentLength("Content-Length: 99999999999999999999\r\n"), std::nullopt);
    EXPECT_EQ(parseContentLength("Accept-ranges: bytes\r\n"), std::nullopt);
}

TEST(ListingParser, machineListingsGiveWholeNamesAndTypedRows) {
    // proftpd and pure-ftpd as they answer: facts in any order, "." and ".." as cdir and pdir.
    const char* mlsd =
        "modify=20240307091200;perm=flcdmpe;type=cdir;unique=FE00U1; .\r\n"
        "type=pdir;sizd=4096;modify=20240307090000; ..\r\n"
        "type=dir;sizd=4096;modify=20240307091200;UNIX.mode=0755; Uploads\r\n"
        "Type=File;Size=6442450944;Modify=20240307091200; a -> b\r\n"
        "type=file;size=10;modify=20240307091200; trailing  \r\n"
        "type=file;size=3;modify=20240307091200; .profile\r\n"
        "type=OS.unix=slink:/x;size=12;modify=20240307091200; latest\r\n"
        "type=OS.unix=chr-1/3;modify=20240307091200; null\r\n";
    EXPECT_EQ(parseMachineListing(mlsd, true),
              (Entries{dir("Uploads", 0), file("a -> b", 6442450944), file("trailing  ", 10),
                       file("latest", 12)}));
    EXPECT_EQ(parseMachineListing(mlsd, false)->size(), 3u);
    // An empty folder reads; text that holds no row, or a file without its size, does not.
    EXPECT_EQ(parseMachineListing("", false), Entries{});
    EXPECT_EQ(parseMachineListing("-rw-r--r-- 1 ftp ftp 10 Jan 15 10:30 x\r\n", false),
              std::nullopt);
    EXPECT_EQ(parseMachineListing("type=file;modify=20240307091200; x\r\n", false), std::nullopt);
}

TEST(ServerFeatures, featReplyChoosesTheStrongestChecksumAndHowToAskForIt) {
    // proftpd with mod_digest, among the replies of the whole session.
    const ServerFeatures proftpd = parseFeatures(
        "220 ProFTPD Server\r\n230 User logged in\r\n211-Features:\r\n CLNT\r\n"
        " HASH CRC32;MD5;SHA-1*;SHA-256;SHA-512;\r\n MLST modify*;perm*;size*;type*;\r\n"
        " XCRC\r\n XMD5\r\n XSHA\r\n XSHA1\r\n XSHA256\r\n211 End\r\n");
    EXPECT_TRUE(proftpd.machineListings);
    EXPECT_EQ(proftpd.hashSelected, DigestAlgorithm::sha1);
    const auto query = checksumQuery(proftpd, "a b.txt");
    ASSERT_TRUE(query);
    EXPECT_EQ(query->algorithm, DigestAlgorithm::sha256);
    EXPECT_EQ(query->commands,
              (std::vector<std::string>{"*OPTS HASH SHA-256", "*HASH a b.txt"}));

    // Only the old commands, the weakest first in FEAT: the strongest wins, asked by its own.
    const ServerFeatures old = parseFeatures("211-Extensions:\n XCRC\n XMD5\n211 End.\n");
    EXPECT_FALSE(old.machineListings);
    EXPECT_EQ(checksumQuery(old, "f")->commands, (std::vector<std::string>{"*XMD5 f"}));
    // vsftpd offers nothing; a refused FEAT neither.
    EXPECT_EQ(checksumQuery(parseFeatures("211-Features:\n EPSV\n MDTM\n211 End\n"), "f"),
              std::nullopt);
    EXPECT_EQ(parseFeatures("500 Unknown command.\r\n"), ServerFeatures{});
}

TEST(ServerFeatures, digestsAreReadFromTheLastReplyOnly) {
    const std::string sha256 = "a948904f2f0f479b8f8197694b30184b0d2ed1c1cd2a1ec0fb85d299a192a447";
    EXPECT_EQ(digestInReply("226 Transfer complete\r\n213-Computing SHA-256 digest\r\n213 "
                            "SHA-256 0-12 " + sha256 + " hx.txt\r\n",
                            DigestAlgorithm::sha256),
              sha256);
    EXPECT_EQ(digestInReply("250-Computing CRC32 digest\r\n250 AF083B2D\r\n",
                            DigestAlgorithm::crc32),
              "af083b2d");
    // A refusal, or a digest of another algorithm than the one asked for, gives none.
    EXPECT_EQ(digestInReply("550 hx.txt: No such file\r\n", DigestAlgorithm::md5), std::nullopt);
    EXPECT_EQ(digestInReply("213 SHA-1 0-12 22596363b3de40b06f981fb85d82312e8c0ed511 hx.txt\r\n",
                            DigestAlgorithm::sha256),
              std::nullopt);
}

// The digests proftpd gave of "hello world\n", also over a file read in part.
TEST(ServerFeatures, digestsMatchWhatServersCompute) {
    const std::string text = "hello world\n";
    const std::pair<DigestAlgorithm, std::string> known[] = {
        {DigestAlgorithm::sha256,
         "a948904f2f0f479b8f8197694b30184b0d2ed1c1cd2a1ec0fb85d299a192a447"},
        {DigestAlgorithm::sha1, "22596363b3de40b06f981fb85d82312e8c0ed511"},
        {DigestAlgorithm::md5, "6f5902ac237024bdd0c176cb93063dc4"},
        {DigestAlgorithm::crc32, "af083b2d"}};
    const auto file = std::filesystem::temp_directory_path() / "tarnel-digest-test.txt";
    std::ofstream(file, std::ios::binary) << text << "and more";
    for (const auto& [algorithm, hex] : known) {
        SCOPED_TRACE(std::string(digestName(algorithm)));
        Digest whole(algorithm);
        whole.update(text.data(), 5);
        whole.update(text.data() + 5, text.size() - 5);
        EXPECT_EQ(whole.hex(), hex);
        Digest kept(algorithm);
        EXPECT_TRUE(kept.updateFromFile(file, static_cast<std::int64_t>(text.size())));
        EXPECT_EQ(kept.hex(), hex);
    }
    EXPECT_FALSE(Digest(DigestAlgorithm::md5).updateFromFile(file, 1000));
    std::filesystem::remove(file);
}

}  // namespace
}  // namespace tarnel
