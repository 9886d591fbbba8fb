// SPDX-License-Identifier: Apache-2.0
#include "host/listener/parent_link.h"

#include <poll.h>
#include <unistd.h>

#include <array>
#include <cerrno>

namespace host {

bool hasInputEnded()
{
    pollfd input{STDIN_FILENO, POLLIN, 0};
    if (poll(&input, 1, 0) <= 0)
        return false;
    if ((input.revents & POLLNVAL) != 0)
        return true;
    std::array<char, 256> buffer{};
    const ssize_t byteCount = read(STDIN_FILENO, buffer.data(), buffer.size());
    return byteCount == 0 || (byteCount < 0 && errno != EINTR && errno != EAGAIN);
}

} // namespace host
