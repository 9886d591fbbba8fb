// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <csignal>

#include <sys/resource.h>

/// Until the end of the scope no file of this process grows beyond that many bytes: writing fails as on a full disk.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t byteCount) : handlerBefore_(std::signal(SIGXFSZ, SIG_IGN))
    {
        ::getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{byteCount, before_.rlim_max};
        isInForce_ = ::setrlimit(RLIMIT_FSIZE, &limit) == 0;
    }
    ~FileSizeLimit()
    {
        ::setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handlerBefore_);
    }
    FileSizeLimit(const FileSizeLimit &) = delete;
    FileSizeLimit &operator=(const FileSizeLimit &) = delete;

    bool isInForce() const { return isInForce_; }

private:
    void (*handlerBefore_)(int);
    rlimit before_{};
    bool isInForce_ = false;
};
