#pragma once

#include <curl/curl.h>

#include <string>

namespace tarnel {

// One server session: a libcurl easy handle and the multi handle that runs its operations
// (SessionDriver). The multi handle keeps the connection open between operations, as
// curl_easy_perform's own would, so the next operation on this session needs no new login.
class CurlSession {
public:
    CurlSession();
    ~CurlSession();
    CurlSession(const CurlSession&) = delete;
    CurlSession& operator=(const CurlSession&) = delete;

    // False when libcurl could not make the handles.
    explicit operator bool() const { return easy_ != nullptr && multi_ != nullptr; }
    CURL* easy() const { return easy_; }
    CURLM* multi() const { return multi_; }

    // Clears every option of the last operation; the open connection stays.
    void reset();

    // libcurl's own words for the last operation's failure ("Failure establishing ssh session:
    // -43, Failed getting banner"), which say more than its code's text; empty when none.
    std::string errorText() const { return errorText_; }

private:
    CURL* easy_;
    CURLM* multi_;
    char errorText_[CURL_ERROR_SIZE] = {};
};

}  // namespace tarnel
