/// Rows of the table of ratios. A row is one job, done by the framework, by the peers a user might pick
/// instead, and by whatever shows how fast this machine could do it.
#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <string>

namespace zeb_bench
{

/// What a row's times are turned into.
enum class Measure { Bytes, Items };

/// Makes its data when the first of its contenders runs, so that unselected rows cost nothing.
class Row
{
public:
    /// `amount` bytes or items are worked on each time. `prepare` runs before each time, unmeasured.
    Row(std::string name, Measure measure, double amount, std::function<void()> prepare = {});

    template <class Work>
    Row &framework(Work work)
    {
        return add('f', "framework", work);
    }
    template <class Work>
    Row &peer(const std::string &peer, Work work)
    {
        return add('p', peer, work);
    }
    template <class Work>
    Row &limit(const std::string &limit, Work work)
    {
        return add('l', limit, work);
    }

    /// What the best peer's time, divided by the framework's, should reach.
    Row &goal(double times_the_best_peer);
    /// What the time of one peer in particular, divided by the framework's, should reach.
    Row &goal_over(const std::string &peer, double times);
    /// What the limit's time, divided by the framework's, should reach.
    Row &limit_goal(double share_of_the_limit);

private:
    template <class Work>
    Row &add(char role, const std::string &contender, Work work)
    {
        if constexpr (std::is_void_v<decltype(work())>)
            enlist(role, contender, work);
        else
            enlist(role, contender, [work] { benchmark::DoNotOptimize(work()); });
        return *this;
    }
    void enlist(char role, const std::string &contender, std::function<void()> work);

    std::string name;
    std::function<void()> prepare;
};

/// Runs the selected rows, all contenders interleaved, and prints the table. The arguments are Google
/// Benchmark's own; `--avx2` in front of them leaves wider vectors unused, for a look at what most machines
/// give. Answers the exit status.
int run_rows(int argc, char **argv);

} // namespace zeb_bench
