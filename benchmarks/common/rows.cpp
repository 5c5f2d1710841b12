#include "benchmarks/common/rows.hpp"

#if ZEB_HAS_HIGHWAY
#include <hwy/targets.h>
#endif

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <map>
#include <vector>

namespace zeb_bench
{
namespace
{

struct Contender {
    char role;
    std::string name;
    std::vector<double> seconds; // one per repetition
};

struct Result {
    Measure measure;
    double amount;
    double goal = 0;
    double limit_goal = 0;
    std::string goal_peer; // empty for the best one
    std::vector<Contender> contenders;
};

struct Table {
    std::vector<std::string> order;
    std::map<std::string, Result> rows;
};

Table &table()
{
    static Table one;
    return one;
}

constexpr char separator = '|'; // between a row's name and a contender's, in Google Benchmark's names

double median(std::vector<double> seconds)
{
    if (seconds.empty())
        return 0;
    const auto middle = seconds.begin() + static_cast<std::ptrdiff_t>(seconds.size() / 2);
    std::nth_element(seconds.begin(), middle, seconds.end());
    return *middle;
}

std::string measured(const Result &row, double seconds)
{
    char text[32];
    if (row.measure == Measure::Bytes)
        std::snprintf(text, sizeof text, "%.3g GB/s", row.amount / seconds / 1e9);
    else
        std::snprintf(text, sizeof text, "%.3g ns", seconds / row.amount * 1e9);
    return text;
}

std::string ratio(double value, double goal, const char *form, double scale)
{
    char text[48];
    std::snprintf(text, sizeof text, form, value * scale);
    std::string cell = text;
    if (goal > 0) {
        std::snprintf(text, sizeof text, form, goal * scale);
        cell += std::string(value >= goal ? " ≥ " : " **<** ") + text;
    }
    return cell;
}

/// Collects every repetition; prints nothing until all have run.
class Ratio_Reporter : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context &) override { return true; }

    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            if (run.run_type != Run::RT_Iteration || run.error_occurred)
                continue;
            const std::string &name = run.run_name.function_name;
            const std::size_t cut = name.rfind(separator);
            const bool by_hand = run.run_name.time_type == "manual_time";
            const double total = by_hand ? run.real_accumulated_time : run.cpu_accumulated_time;
            for (Contender &contender : table().rows[name.substr(0, cut)].contenders)
                if (contender.name == name.substr(cut + 1))
                    contender.seconds.push_back(total / static_cast<double>(run.iterations));
        }
    }

    void Finalize() override
    {
        std::puts("| row | framework | best peer | framework ÷ peer | limit | share of the limit |\n"
                  "|---|---:|---:|---:|---:|---:|");
        for (const std::string &name : table().order)
            print(name, table().rows[name]);
    }

private:
    static void print(const std::string &name, const Result &row)
    {
        double ours = 0, peer = 0, limit = 0, other = 0; // other: the peer of the goal
        std::string peer_name;
        for (const Contender &contender : row.contenders) {
            const double seconds = median(contender.seconds);
            if (contender.role == 'f')
                ours = seconds;
            if (contender.role == 'l')
                limit = seconds;
            if (contender.role == 'p' && contender.name == row.goal_peer)
                other = seconds;
            if (contender.role == 'p' && seconds > 0 && (peer == 0 || seconds < peer)) {
                peer = seconds;
                peer_name = contender.name;
            }
        }
        if (ours == 0)
            return;
        const std::string peer_cell = peer == 0 ? "" : peer_name + " " + measured(row, peer);
        std::string ratio_cell =
            peer == 0 ? "" : ratio(peer / ours, row.goal_peer.empty() ? row.goal : 0, "%.2f", 1);
        if (other > 0)
            ratio_cell += "; " + row.goal_peer + " " + ratio(other / ours, row.goal, "%.2f", 1);
        const std::string limit_cell = limit == 0 ? "" : measured(row, limit);
        std::printf("| %s | %s | %s | %s | %s | %s |\n", name.c_str(), measured(row, ours).c_str(),
                    peer_cell.c_str(), ratio_cell.c_str(), limit_cell.c_str(),
                    limit == 0 ? "" : ratio(limit / ours, row.limit_goal, "%.0f %%", 100).c_str());
    }
};

/// The time that this thread had a processor, so that what else runs on the machine counts little.
double thread_seconds()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

void time_alone(benchmark::State &state, const std::function<void()> &prepare,
                const std::function<void()> &work)
{
    for (auto _ : state) {
        prepare();
        const double start = thread_seconds();
        work();
        state.SetIterationTime(thread_seconds() - start);
    }
}

void leave_wider_vectors_unused()
{
#if ZEB_HAS_HIGHWAY
    hwy::DisableTargets(HWY_AVX3 | HWY_AVX3_DL);
#endif
}

} // namespace

Row::Row(std::string row, Measure measure, double amount, std::function<void()> prepared)
    : name(std::move(row)), prepare(std::move(prepared))
{
    table().order.push_back(name);
    table().rows[name] = {measure, amount, 0, 0, {}, {}};
}

Row &Row::goal(double times_the_best_peer)
{
    table().rows[name].goal = times_the_best_peer;
    return *this;
}

Row &Row::goal_over(const std::string &peer, double times)
{
    table().rows[name].goal_peer = peer;
    return goal(times);
}

Row &Row::limit_goal(double share_of_the_limit)
{
    table().rows[name].limit_goal = share_of_the_limit;
    return *this;
}

void Row::enlist(char role, const std::string &contender, std::function<void()> work)
{
    table().rows[name].contenders.push_back({role, contender, {}});
    const std::string full = name + separator + contender;
    if (prepare) {
        benchmark::RegisterBenchmark(full.c_str(), [before = prepare, work](benchmark::State &state) {
            time_alone(state, before, work);
        })->UseManualTime();
    } else {
        benchmark::RegisterBenchmark(full.c_str(), [work](benchmark::State &state) {
            for (auto _ : state)
                work();
        });
    }
}

int run_rows(int argc, char **argv)
{
    if (argc > 1 && std::strcmp(argv[1], "--avx2") == 0) {
        leave_wider_vectors_unused();
        argv[1] = argv[0];
        ++argv;
        --argc;
    }
    // Ours come first, so that the caller's arguments override them.
    std::vector<char *> arguments{argv[0]};
    char interleaved[] = "--benchmark_enable_random_interleaving=true";
    char repetitions[] = "--benchmark_repetitions=9";
    char least[] = "--benchmark_min_time=0.01";
    arguments.insert(arguments.end(), {interleaved, repetitions, least});
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 1;
    Ratio_Reporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}

} // namespace zeb_bench
