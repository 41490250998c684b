#include "transfer/ftp_error.h"

#include <gtest/gtest.h>

namespace tarnel {
namespace {

TEST(FTPError, codesDecideTheWordsNotTheirText) {
    EXPECT_EQ(FTPError::curlExitCode(19, "whatever the server said").errorDescription(),
              "Partial file received. The transfer was interrupted. It will retry automatically.");
    EXPECT_EQ(FTPError::curlExitCode(9, "").errorDescription(),
              "Access denied to the remote folder. Check that the path exists and you have read "
              "permission.");
    // The real partial-file code takes the default row, with libcurl's text trimmed.
    EXPECT_EQ(FTPError::curlExitCode(18, " Transferred a partial file\n").errorDescription(),
              "Connection error (code 18) (Transferred a partial file). Check your connection "
              "settings.");
    EXPECT_EQ(FTPError::curlExitCode(-1, "Failed to initialize libcurl").errorDescription(),
              "Connection error (code -1) (Failed to initialize libcurl). Check your connection "
              "settings.");
    EXPECT_EQ(FTPError::curlExitCode(99, "").errorDescription(),
              "Connection error (code 99). Check your connection settings.");
    // Blanks alone are not empty text: the brackets stay, with nothing in them.
    EXPECT_EQ(FTPError::curlExitCode(5, "  ").errorDescription(),
              "Connection error (code 5) (). Check your connection settings.");
}

TEST(FTPError, kindsCarryTheirPayloadIntoTheSentence) {
    const auto mismatch = FTPError::sizeMismatch(1'500'000, 532);
    EXPECT_EQ(mismatch.kind(), FTPError::Kind::sizeMismatch);
    EXPECT_EQ(mismatch.curlCode(), 0);
    EXPECT_STREQ(mismatch.what(),
                 "Size mismatch: expected 1.5 MB, got 532 bytes. The file may still be uploading.");
    EXPECT_EQ(FTPError::insufficientDiskSpace(0.04).errorDescription(),
              "Only 0.0 GB of disk space remaining. Free up space to continue downloading.");
    EXPECT_EQ(FTPError::downloadFailed("File not found after download: a.txt").errorDescription(),
              "Download failed: File not found after download: a.txt");
}

TEST(FTPError, changedHostKeyKeepsCodeSixtyButSaysWhatToDo) {
    const auto error = FTPError::hostKeyChanged("files.example.org", "/home/u/known_hosts");
    EXPECT_EQ(error.kind(), FTPError::Kind::curlExitCode);
    EXPECT_EQ(error.curlCode(), 60);
    const std::string text = error.errorDescription();
    EXPECT_NE(text.find("host key has changed"), std::string::npos) << text;
    EXPECT_NE(text.find("remove the line for files.example.org from /home/u/known_hosts"),
              std::string::npos)
        << text;
    EXPECT_NE(FTPError::curlExitCode(60, "").errorDescription(), text);
}

}  // namespace
}  // namespace tarnel
