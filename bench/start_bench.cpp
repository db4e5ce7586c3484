// Start-up time to the painted window, processor time and resident memory: the launcher, its bare
// twin, an empty window and all windows of the program, and the same of another build where its
// folder is given, run in changing order on the display that is there. Prints medians, quartiles,
// and what the medians are of the twin's.
//   start_bench [runs [folder of another build's start_tarnwick and start_twin]]

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <numeric>
#include <random>
#include <sys/resource.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

struct Sample {
  double milliseconds = 0;
  double processorMilliseconds = 0;
  double mebibytes = 0;
};

struct Start {
  const char* title;
  const char* program;
  const char* argument = nullptr;
  std::filesystem::path folder{};
  std::vector<Sample> samples{};
};

constexpr std::size_t twin = 1;

// What is started of a build, whose twin is the second.
std::vector<Start> startsOf(const std::filesystem::path& folder) {
  return {{"launcher", "start_tarnwick", nullptr, folder},
          {"twin", "start_twin", nullptr, folder},
          {"empty window", "start_twin", "empty", folder},
          {"all windows", "start_tarnwick", "all", folder}};
}

[[noreturn]] void fail(const Start& what) {
  std::fprintf(stderr, "%s did not report\n", what.title);
  std::exit(EXIT_FAILURE);
}

double milliseconds(const timeval& time) {
  return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
}

Sample runOnce(const Start& what) {
  std::this_thread::sleep_for(std::chrono::milliseconds(150));  // the display settles
  std::array<int, 2> pipeEnds{};
  if (pipe(pipeEnds.data()) != 0) fail(what);
  const auto start = std::chrono::steady_clock::now().time_since_epoch();
  const pid_t child = fork();
  if (child == 0) {
    dup2(pipeEnds[1], STDOUT_FILENO);
    close(pipeEnds[0]);
    execl((what.folder / what.program).c_str(), what.program, what.argument, nullptr);
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

// The value's quartiles: a quarter of the samples is below the first, half below the second.
std::array<double, 3> quartiles(const Start& start, double Sample::*value) {
  std::vector<double> values;
  for (const Sample& sample : start.samples) values.push_back(sample.*value);
  std::ranges::sort(values);
  const std::size_t size = values.size();
  return {values[size / 4], values[size / 2], values[size - 1 - size / 4]};
}

void print(const Start& start, const Start& of) {
  std::printf("%-14s", start.title);
  for (const auto value :
       {&Sample::milliseconds, &Sample::processorMilliseconds, &Sample::mebibytes}) {
    const auto [low, median, high] = quartiles(start, value);
    std::printf(" %7.1f %6.1f %6.1f %6.3f", median, low, high, median / quartiles(of, value)[1]);
  }
  std::printf("\n");
}

}  // namespace

int main(int argc, char* argv[]) {
  const int runs = argc > 1 ? std::max(std::atoi(argv[1]), 1) : 21;
  auto starts = startsOf(std::filesystem::canonical("/proc/self/exe").parent_path());
  if (argc > 2) std::ranges::copy(startsOf(argv[2]), std::back_inserter(starts));
  // In another order each time: the display is still busy with the end of a large program.
  std::vector<std::size_t> order(starts.size());
  std::iota(order.begin(), order.end(), 0);
  std::mt19937 generator;  // NOLINT(cert-msc51-cpp): the same orders in each measurement

  for (int run = -2; run < runs; ++run) {  // the first two warm the caches
    std::ranges::shuffle(order, generator);
    for (const std::size_t i : order) {
      const Sample sample = runOnce(starts[i]);
      if (run >= 0) starts[i].samples.push_back(sample);
    }
  }
  std::printf("%-14s %7s %13s %6s %7s %13s %6s %7s %13s %6s   (medians of %d runs)\n", "", "ms",
              "quartiles", "/ twin", "CPU ms", "quartiles", "/ twin", "MiB", "quartiles", "/ twin",
              runs);
  for (std::size_t i = 0; i < starts.size(); ++i) {
    if (i > 0 && starts[i].folder != starts[i - 1].folder)
      std::printf("%s\n", starts[i].folder.c_str());
    print(starts[i], starts[twin]);
  }
  std::puts("At most: launcher 1.10 times the twin in ms, 1.05 in MiB; all windows 1.5 in MiB");
}
