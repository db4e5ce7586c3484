// Start-up time to the painted window, processor time and resident memory: the launcher, its bare
// twin, an empty window and all windows of the program, run in changing order on the display that
// is there. Prints medians and ratios.
//   start_bench [runs]

#include "measure.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <sys/resource.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

struct Start {
  const char* title;
  const char* program;
  const char* argument = nullptr;
};

constexpr std::array<Start, 4> starts{{{"launcher", "start_tarnwick"},
                                       {"twin", "start_twin"},
                                       {"empty window", "start_twin", "empty"},
                                       {"all windows", "start_tarnwick", "all"}}};
constexpr std::size_t twin = 1;

struct Sample {
  double milliseconds = 0;
  double processorMilliseconds = 0;
  double mebibytes = 0;
};

[[noreturn]] void fail(const Start& what) {
  std::fprintf(stderr, "%s did not report\n", what.title);
  std::exit(EXIT_FAILURE);
}

double milliseconds(const timeval& time) {
  return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
}

Sample runOnce(const Start& what) {
  static const auto folder = std::filesystem::canonical("/proc/self/exe").parent_path();
  std::this_thread::sleep_for(std::chrono::milliseconds(150));  // the display settles
  std::array<int, 2> pipeEnds{};
  if (pipe(pipeEnds.data()) != 0) fail(what);
  const auto start = std::chrono::steady_clock::now().time_since_epoch();
  const pid_t child = fork();
  if (child == 0) {
    dup2(pipeEnds[1], STDOUT_FILENO);
    close(pipeEnds[0]);
    execl((folder / what.program).c_str(), what.program, what.argument, nullptr);
    std::_Exit(EXIT_FAILURE);
  }
  close(pipeEnds[1]);
  long long nanoseconds = 0;
  long kibibytes = 0;
  std::FILE* reports = fdopen(pipeEnds[0], "r");
  if (std::fscanf(reports, "%lld %ld", &nanoseconds, &kibibytes) != 2) fail(what);
  std::fclose(reports);
  rusage usage{};
  wait4(child, nullptr, 0, &usage);
  const auto startNanoseconds = std::chrono::duration_cast<std::chrono::nanoseconds>(start).count();
  return {.milliseconds = static_cast<double>(nanoseconds - startNanoseconds) / 1e6,
          .processorMilliseconds = milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime),
          .mebibytes = static_cast<double>(kibibytes) / 1024};
}

double medianOf(const std::vector<Sample>& samples, double Sample::*value) {
  std::vector<double> values;
  for (const Sample& sample : samples) values.push_back(sample.*value);
  return tarnwick::bench::median(values);
}

}  // namespace

int main(int argc, char* argv[]) {
  const int runs = argc > 1 ? std::atoi(argv[1]) : 21;
  std::array<std::vector<Sample>, starts.size()> samples;
  // In another order each time: the display is still busy with the end of a large program.
  std::array<std::size_t, starts.size()> order{0, 1, 2, 3};
  std::mt19937 generator;  // NOLINT(cert-msc51-cpp): the same orders in each measurement

  for (int run = -2; run < runs; ++run) {  // the first two warm the caches
    std::ranges::shuffle(order, generator);
    for (const std::size_t i : order) {
      const Sample sample = runOnce(starts[i]);
      if (run >= 0) samples[i].push_back(sample);
    }
  }
  std::printf("%-14s %8s %7s %8s %7s %8s %7s   (medians of %d runs)\n", "", "ms", "/ twin",
              "CPU ms", "/ twin", "MiB", "/ twin", runs);
  for (std::size_t i = 0; i < starts.size(); ++i) {
    std::printf("%-14s", starts[i].title);
    for (const auto value :
         {&Sample::milliseconds, &Sample::processorMilliseconds, &Sample::mebibytes}) {
      const double own = medianOf(samples[i], value);
      std::printf(" %8.1f %7.3f", own, own / medianOf(samples[twin], value));
    }
    std::printf("\n");
  }
  std::puts("At most: launcher 1.10 times the twin in ms, 1.05 in MiB; all windows 1.5 in MiB");
}
