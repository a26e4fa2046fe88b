#include "Chance.h"

#include <algorithm>
#include <bit>

namespace records
{

namespace
{

// Octets that a message may take: mostly few, now and then what fits the buffer with all that cannot be left out.
constexpr std::int64_t few = 1200;
constexpr std::int64_t many = 5000;

} // namespace

void Chance::start(std::uint32_t seed)
{
    engine_.seed(seed);
    left_ = 8 * (oneIn(6) ? many : 20 + static_cast<std::int64_t>(any() % few));
    constexpr double densities[] = {0.15, 0.4, 0.7, 0.95};
    density_ = densities[any() % std::size(densities)];
    constexpr double wildnesses[] = {0.0003, 0.003, 0.03, 0.3};
    wildness_ = wildnesses[any() % std::size(wildnesses)];
}

Chance::Cases& Chance::casesOf(const Place& place, std::initializer_list<std::int64_t> all)
{
    Cases& cases = places_[place];
    if (cases.size() < all.size())
    {
        for (const std::int64_t one : all)
        {
            cases.emplace(one, false);
        }
    }
    return cases;
}

std::int64_t Chance::between(std::int64_t lower, std::int64_t upper, const Place& place)
{
    spend(static_cast<std::int64_t>(std::bit_width(static_cast<std::uint64_t>(upper - lower))));
    Cases& cases = casesOf(place, {lower, upper});
    std::int64_t chosen = lower + static_cast<std::int64_t>(any() % static_cast<std::uint64_t>(upper - lower + 1));
    for (const std::int64_t end : {lower, upper})
    {
        if (oneIn(cases[end] ? 12 : 2))
        {
            chosen = end;
        }
    }
    const auto found = cases.find(chosen);
    if (found != cases.end())
    {
        found->second = true;
    }
    return chosen;
}

unsigned Chance::length(unsigned lower, unsigned upper, unsigned bitsEach, const Place& place)
{
    const std::int64_t affordable = std::max<std::int64_t>(lower, left_ / std::max(1U, bitsEach));
    const auto most = static_cast<unsigned>(std::min<std::int64_t>(upper, affordable));
    Cases& cases = casesOf(place, {lower, upper});
    unsigned chosen = lower + static_cast<unsigned>(any() % (most - lower + 1));
    // Short lists leave something for what comes behind.
    if (oneIn(2))
    {
        chosen = std::min(chosen, lower + static_cast<unsigned>(any() % 4));
    }
    if (most == upper && oneIn(cases[upper] ? 12 : 2))
    {
        chosen = upper;
    }
    if (oneIn(cases[lower] ? 12 : 2))
    {
        chosen = lower;
    }
    const auto found = cases.find(chosen);
    if (found != cases.end())
    {
        found->second = true;
    }
    return chosen;
}

unsigned Chance::pick(unsigned count, const Place& place)
{
    Cases& cases = places_[place];
    for (unsigned i = static_cast<unsigned>(cases.size()); i < count; ++i)
    {
        cases.emplace(i, false);
    }
    auto chosen = static_cast<unsigned>(any() % count);
    if (cases[chosen])
    {
        // Once more, if there is something new.
        const auto fresh = std::find_if(cases.begin(), cases.end(), [](const auto& one) { return !one.second; });
        if (fresh != cases.end())
        {
            chosen = static_cast<unsigned>(fresh->first);
        }
    }
    cases[chosen] = true;
    return chosen;
}

bool Chance::decide(const Place& place)
{
    Cases& cases = casesOf(place, {0, 1});
    bool on = left_ > 0 && with(density_);
    if (left_ > 0 && !cases[on ? 0 : 1] && oneIn(2))
    {
        on = !on;
    }
    spend(1);
    cases[on ? 1 : 0] = true;
    return on;
}

std::vector<std::string> Chance::missing() const
{
    std::vector<std::string> lines;
    for (const auto& [place, cases] : places_)
    {
        for (const auto& [value, occurred] : cases)
        {
            if (!occurred)
            {
                constexpr const char* kinds[] = {"number", "present", "alternative", "count"};
                lines.push_back(std::get<0>(place) + ":" + std::to_string(std::get<1>(place)) + ": " +
                                kinds[static_cast<int>(std::get<2>(place))] + " " + std::to_string(value));
            }
        }
    }
    return lines;
}

std::size_t Chance::cases() const
{
    std::size_t all = 0;
    for (const auto& [place, cases] : places_)
    {
        all += cases.size();
    }
    return all;
}

} // namespace records
