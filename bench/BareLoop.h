#pragma once

#include <cstdint>

// The reference that the station is measured by: an epoll loop that does the least that answering a read request takes
// (one read, one write, no store, no checks beyond the request's length). Serves the port on the loopback until the
// process ends; returns only when the port is refused.
void serveBareLoop(std::uint16_t port);
