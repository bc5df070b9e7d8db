#include "FeatureBenchmark.h"

#include <algorithm>
#include <random>
#include <stdexcept>
#include <string>

#include <benchmark/benchmark.h>

#include "ZENT_API/ZENTSession.h"
#include "platform/MemoryProbe.h"

namespace zent::bench {

namespace {

/// Registers a benchmark whose iterations are single calls: `work` on one request after another.
/// `before` runs ahead of each round.
template <typename Before, typename Work>
void add(const std::string& name, const std::vector<FeatureRequest>& requests, Before before,
         Work work) {
    benchmark::RegisterBenchmark(name.c_str(), [&requests, before, work](benchmark::State& state) {
        while (state.KeepRunningBatch(static_cast<benchmark::IterationCount>(requests.size()))) {
            before();
            for (const FeatureRequest& request : requests) {
                work(request);
            }
        }
    });
}

template <typename Work>
void add(const std::string& name, const std::vector<FeatureRequest>& requests, Work work) {
    add(
        name, requests, [] {}, work);
}

const char* requireFound(const char* value) {
    if (value == nullptr) {
        throw std::logic_error("libcups doesn't find what was set");
    }
    return value;
}

} // namespace

FeatureBenchmark::FeatureBenchmark() {
    fillCollections();
    for (const FeatureRequest& request : allFeatureRequests()) {
        if (!request.isCollection()) {
            require(request.set(m_ticket.session(), m_ticket.settings()));
            m_requests.push_back(request);
        }
        m_cups.setOption(request.narrowName(), request.narrowValue());
        m_cups.addAttribute(request.narrowName(), request.narrowValue());
    }
    constexpr unsigned seed = 136;
    std::mt19937 random(seed);
    std::ranges::shuffle(m_requests, random);
}

void FeatureBenchmark::fillCollections() {
    const PageTicket page(m_ticket);
    require(requestFor(u"copies").set(m_ticket.session(), page.settings()));
    for (const FeatureRequest& request : allFeatureRequests()) {
        if (request.isCollection()) {
            require(fnSetPageLevelFeatureFromTarvoJtSettings(
                m_ticket.session(), m_ticket.settings(), request.name().c_str(), 0,
                page.settings()));
        }
    }
}

void FeatureBenchmark::registerAll() {
    registerLibrary();
    registerCups();
    registerProbe();
}

void FeatureBenchmark::registerLibrary() {
    add("set/zent", m_requests, [this](const FeatureRequest& request) {
        require(request.set(m_ticket.session(), m_ticket.settings()));
    });
    add("get/zent", m_requests, [this](const FeatureRequest& request) {
        require(request.get(m_ticket.session(), m_ticket.settings()));
    });
}

void FeatureBenchmark::registerCups() {
    add("set/cups-option", m_requests, [this](const FeatureRequest& request) {
        m_cups.setOption(request.narrowName(), request.narrowValue());
    });
    add("get/cups-option", m_requests, [this](const FeatureRequest& request) {
        benchmark::DoNotOptimize(requireFound(m_cups.getOption(request.narrowName())));
    });
    add("get/cups-ipp", m_requests, [this](const FeatureRequest& request) {
        benchmark::DoNotOptimize(requireFound(m_cups.getAttribute(request.narrowName())));
    });
    add(
        "set/cups-ipp", m_requests, [this] { m_written.removeAllAttributes(); },
        [this](const FeatureRequest& request) {
        m_written.addAttribute(request.narrowName(), request.narrowValue());
        });
}

void FeatureBenchmark::registerProbe() {
    const auto addProbe = [](const char* name, const void* object, std::size_t size) {
        benchmark::RegisterBenchmark(name, [object, size](benchmark::State& state) {
            for ([[maybe_unused]] auto each : state) {
                benchmark::DoNotOptimize(platform::isWritableMemory(object, size));
            }
        });
    };
    addProbe("probe/session", m_ticket.session(), sizeof(ZENTSession));
    addProbe("probe/settings", m_ticket.settings(), sizeof(FeatureSettings));
}

} // namespace zent::bench
