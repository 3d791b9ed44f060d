#include "platform/net/Reactor.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/timerfd.h>
#include <system_error>
#include <utility>

namespace {

constexpr long retryNanoseconds = 100'000'000;

std::uint32_t epollMask(Reactor::Interest interest) {
    const auto bits = static_cast<unsigned>(interest);
    return ((bits & 1U) != 0 ? EPOLLIN : 0U) | ((bits & 2U) != 0 ? EPOLLOUT : 0U);
}

epoll_event epollEvent(Reactor::Watch watch, Reactor::Interest interest) {
    epoll_event event{};
    event.events = epollMask(interest);
    event.data.u64 = std::uint64_t{watch.generation} << 32U | watch.slot;
    return event;
}

Reactor::Watch watchOf(const epoll_event& event) {
    return {static_cast<std::uint32_t>(event.data.u64), static_cast<std::uint32_t>(event.data.u64 >> 32U)};
}

} // namespace

Reactor::Reactor(const Reloj& clock)
    : clock_(clock), epoll_(epoll_create1(EPOLL_CLOEXEC)),
      timer_(timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC)) {
    if (!epoll_ || !timer_ || !alive(add(timer_.number(), retryTimer_, Interest::read)))
        throw std::system_error(errno, std::system_category(), "reactor");
}

bool Reactor::turn(std::chrono::microseconds budget) {
    if (depth_ == maxNesting)
        return false;
    if (const Slot* outer = find(current_))
        outer->handler->onNestedTurn();
    ++depth_;
    callTime_ = clock_.instante();
    const auto end = callTime_ + budget;
    bool more = true;
    do {
        more = batchNext_ < batchEnd_ || refill();
        if (more) {
            const epoll_event event = batch_[batchNext_++];
            dispatch(event);
        }
        callTime_ = clock_.instante();
    } while (more && callTime_ < end);
    --depth_;
    return more;
}

bool Reactor::refill() {
    const int count = epoll_wait(epoll_.number(), batch_.data(), static_cast<int>(batch_.size()), 0);
    batchNext_ = 0;
    batchEnd_ = count > 0 ? static_cast<std::size_t>(count) : 0;
    return batchEnd_ > 0;
}

// The interest is looked up before each call: an earlier handler may have changed or ended it since the kernel
// reported.
void Reactor::dispatch(const epoll_event& event) {
    const Watch watch = watchOf(event);
    const Watch outer = std::exchange(current_, watch);
    if ((event.events & EPOLLOUT) != 0)
        if (Handler* handler = handlerFor(watch, Interest::write))
            handler->onWritable();
    if ((event.events & (EPOLLIN | EPOLLHUP | EPOLLERR)) != 0) {
        if (Handler* handler = handlerFor(watch, Interest::read))
            handler->onReadable();
        else if (const Slot* slot = find(watch); slot != nullptr && (event.events & (EPOLLHUP | EPOLLERR)) != 0)
            slot->handler->onHangUp();
    }
    current_ = outer;
}

Reactor::Watch Reactor::add(int descriptor, Handler& handler, Interest interest) {
    if (freeSlots_.empty()) {
        freeSlots_.push_back(static_cast<std::uint32_t>(slots_.size()));
        slots_.emplace_back();
    }
    const std::uint32_t index = freeSlots_.back();
    Slot& slot = slots_[index];
    const Watch watch{index, slot.generation + 1};
    epoll_event event = epollEvent(watch, interest);
    if (epoll_ctl(epoll_.number(), EPOLL_CTL_ADD, descriptor, &event) != 0)
        return {};
    freeSlots_.pop_back();
    slot = {&handler, descriptor, watch.generation, interest};
    return watch;
}

void Reactor::change(Watch watch, Interest interest) {
    Slot& slot = slots_[watch.slot];
    if (slot.interest == interest)
        return;
    slot.interest = interest;
    epoll_event event = epollEvent(watch, interest);
    epoll_ctl(epoll_.number(), EPOLL_CTL_MOD, slot.descriptor, &event);
}

void Reactor::remove(Watch watch) {
    if (!alive(watch))
        return;
    Slot& slot = slots_[watch.slot];
    epoll_ctl(epoll_.number(), EPOLL_CTL_DEL, slot.descriptor, nullptr);
    slot.handler = nullptr;
    freeSlots_.push_back(watch.slot);
}

const Reactor::Slot* Reactor::find(Watch watch) const {
    if (watch.slot >= slots_.size())
        return nullptr;
    const Slot& slot = slots_[watch.slot];
    return slot.handler != nullptr && slot.generation == watch.generation ? &slot : nullptr;
}

Reactor::Handler* Reactor::handlerFor(Watch watch, Interest interest) const {
    const Slot* slot = find(watch);
    const bool wanted = slot != nullptr && (epollMask(slot->interest) & epollMask(interest)) != 0;
    return wanted ? slot->handler : nullptr;
}

// The kernel gives out the lowest number that is free, so that number tells how many are taken.
int Reactor::descriptorsToTake() const {
    rlimit limit{};
    if (spareDescriptors_ == 0 || getrlimit(RLIMIT_NOFILE, &limit) != 0 || limit.rlim_cur > INT_MAX)
        return INT_MAX;
    const Descriptor next(fcntl(timer_.number(), F_DUPFD_CLOEXEC, 0));
    return next ? static_cast<int>(limit.rlim_cur) - spareDescriptors_ - next.number() : 0;
}

void Reactor::waitForDescriptor(Watch listener) {
    change(listener, Interest::none);
    waiting_.push_back(listener);
    const itimerspec once{.it_interval = {}, .it_value = {.tv_sec = 0, .tv_nsec = retryNanoseconds}};
    timerfd_settime(timer_.number(), 0, &once, nullptr);
}

void Reactor::descriptorFreed() {
    for (const Watch listener : waiting_)
        if (alive(listener))
            change(listener, Interest::read);
    waiting_.clear();
}

void Reactor::RetryTimer::onReadable() {
    std::uint64_t expirations = 0;
    if (read(reactor_.timer_.number(), &expirations, sizeof expirations) > 0)
        reactor_.descriptorFreed();
}

std::uint32_t Reactor::offer(Incoming incoming) {
    lastRequestId_ = std::max(lastRequestId_ + 1, 1U); // 0 is skipped when the count wraps
    offers_.push_back({lastRequestId_, std::move(incoming)});
    return lastRequestId_;
}

bool Reactor::offered(std::uint32_t requestId) const {
    return std::ranges::find(offers_, requestId, &Offer::requestId) != offers_.end();
}

std::optional<Reactor::Incoming> Reactor::take(std::uint32_t requestId) {
    const auto found = std::ranges::find(offers_, requestId, &Offer::requestId);
    if (found == offers_.end())
        return std::nullopt;
    Incoming incoming = std::move(found->incoming);
    offers_.erase(found);
    return incoming;
}

std::span<std::uint8_t> Reactor::receiveBuffer() {
    auto& buffer = receiveBuffers_[depth_ - 1];
    if (!buffer)
        buffer = std::make_unique_for_overwrite<std::uint8_t[]>(receiveSize);
    return {buffer.get(), receiveSize};
}
