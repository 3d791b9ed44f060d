#pragma once

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>

// What a station under measurement tells about itself, in memory shared with the measuring process.
struct StationReport {
    static constexpr std::size_t capacity = 100'000;

    std::atomic<std::int64_t> residentBytes;
    std::atomic<std::int64_t> monitorChanged;     // when the frame monitor's box last changed, steady clock, ns
    std::atomic<std::size_t> waits;               // how many of the following are filled
    std::array<std::int64_t, capacity> eventWait; // of each posted window event, ns
    std::atomic<std::size_t> keys;                // how many of the following are filled
    std::array<std::int64_t, capacity> keyAnswer; // from each press of an arrow to the repaint of the grid, ns
};

// Makes the report that stations started from now on write; call before starting them. Lives as long as the process.
StationReport& stationReport();

// Bodies for ServerProcess: the real main window, shown, in this process; the second with "Ver TX/RX" ticked.
void serveStation(std::uint16_t port);
void serveStationWithTxRx(std::uint16_t port);
