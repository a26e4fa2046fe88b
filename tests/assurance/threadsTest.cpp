// All public calls on eight threads at once, each thread in an order of its own: what they give is what they give
// alone.
#include "calls.h"

#include <gtest/gtest.h>

#include <atomic>
#include <random>
#include <thread>

namespace
{

#if defined(__SANITIZE_THREAD__) || defined(__SANITIZE_ADDRESS__)
#define IS_WATCHED
#elif defined(__has_feature)
#if __has_feature(thread_sanitizer) || __has_feature(address_sanitizer)
#define IS_WATCHED
#endif
#endif

#ifdef IS_WATCHED
constexpr unsigned randomRecords = 2;
constexpr unsigned rounds = 1;
#else
constexpr unsigned randomRecords = 6;
constexpr unsigned rounds = 2;
#endif
constexpr unsigned threads = 8;

TEST(Threads, all_calls_give_what_they_give_alone)
{
    const std::vector<assurance::Input> inputs = assurance::inputs(randomRecords);
    struct Job
    {
        const assurance::Call* call;
        const assurance::Input* input;
        assurance::Result alone;
    };
    std::vector<Job> jobs;
    for (const assurance::Input& input : inputs)
    {
        for (const assurance::Call& call : assurance::calls())
        {
            jobs.push_back({&call, &input, resultOf(call, input)});
            EXPECT_FALSE(jobs.back().alone.wrong) << call.name << ", " << input.name;
            EXPECT_GT(jobs.back().alone.length, 0U) << call.name << ", " << input.name;
        }
    }
    std::atomic<unsigned> different = 0;
    std::atomic<const Job*> last = nullptr;
    std::atomic<unsigned> waiting = threads;
    const auto work = [&](unsigned seed)
    {
        std::vector<const Job*> mine;
        for (const Job& job : jobs)
        {
            mine.push_back(&job);
        }
        std::shuffle(mine.begin(), mine.end(), std::minstd_rand(seed));
        --waiting;
        while (waiting != 0) // all begin at once
        {
            std::this_thread::yield();
        }
        for (unsigned round = 0; round < rounds; ++round)
        {
            for (const Job* const job : mine)
            {
                if (resultOf(*job->call, *job->input) != job->alone)
                {
                    ++different;
                    last = job;
                }
            }
        }
    };
    std::vector<std::thread> all;
    for (unsigned i = 0; i < threads; ++i)
    {
        all.emplace_back(work, i + 1);
    }
    for (std::thread& thread : all)
    {
        thread.join();
    }
    EXPECT_EQ(different, 0U) << "such as " << last.load()->call->name << ", " << last.load()->input->name;
    std::printf("%zu calls on each of %u threads\n", jobs.size() * rounds, threads);
}

} // namespace
