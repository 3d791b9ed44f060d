// Whether there is memory left, asked before a lot of it is taken, so that what is refused is the large request of one
// and not the next small one of anybody.
#pragma once

#include <cstddef>

// Whether the system would give the program that many bytes more (limits of its user, of its address space). What is
// asked for is not taken. Memory that a system promises and does not have is beyond this question.
bool hayMemoria(std::size_t bytes) noexcept;
