// Start-up time to the first painted window and resident memory: the launcher, its bare twin and
// an empty window, run in turn on the display that is there. Prints medians and ratios.
//   start_bench [runs]

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

struct Sample {
  double milliseconds = 0;
  double mebibytes = 0;
};

[[noreturn]] void fail(const std::string& program) {
  std::fprintf(stderr, "%s did not report\n", program.c_str());
  std::exit(EXIT_FAILURE);
}

Sample runOnce(const std::string& program) {
  std::array<int, 2> pipeEnds{};
  if (pipe(pipeEnds.data()) != 0) fail(program);
  const auto start = std::chrono::steady_clock::now().time_since_epoch();
  const pid_t child = fork();
  if (child == 0) {
    dup2(pipeEnds[1], STDOUT_FILENO);
    close(pipeEnds[0]);
    execl(program.c_str(), program.c_str(), nullptr);
    std::_Exit(EXIT_FAILURE);
  }
  close(pipeEnds[1]);
  long long nanoseconds = 0;
  long kibibytes = 0;
  std::FILE* reports = fdopen(pipeEnds[0], "r");
  if (std::fscanf(reports, "%lld %ld", &nanoseconds, &kibibytes) != 2) fail(program);
  std::fclose(reports);
  waitpid(child, nullptr, 0);
  const auto startNanoseconds = std::chrono::duration_cast<std::chrono::nanoseconds>(start).count();
  return {.milliseconds = static_cast<double>(nanoseconds - startNanoseconds) / 1e6,
          .mebibytes = static_cast<double>(kibibytes) / 1024};
}

double median(const std::vector<Sample>& samples, double Sample::*value) {
  std::vector<double> values;
  for (const Sample& sample : samples) values.push_back(sample.*value);
  std::ranges::sort(values);
  return values[values.size() / 2];
}

}  // namespace

int main(int argc, char* argv[]) {
  const int runs = argc > 1 ? std::atoi(argv[1]) : 21;
  const auto folder = std::filesystem::canonical("/proc/self/exe").parent_path();
  const std::array<std::string, 3> names{"start_tarnwick", "start_twin", "start_empty"};
  std::array<std::vector<Sample>, names.size()> samples;
  for (int run = -2; run < runs; ++run) {  // the first two warm the caches
    for (std::size_t i = 0; i < names.size(); ++i) {
      const Sample sample = runOnce((folder / names[i]).string());
      if (run >= 0) samples[i].push_back(sample);
    }
  }
  const double twinTime = median(samples[1], &Sample::milliseconds);
  const double twinMemory = median(samples[1], &Sample::mebibytes);
  std::printf("%-16s %10s %8s %10s %8s   (medians of %d runs)\n", "", "ms", "/ twin", "MiB",
              "/ twin", runs);
  for (std::size_t i = 0; i < names.size(); ++i) {
    const double time = median(samples[i], &Sample::milliseconds);
    const double memory = median(samples[i], &Sample::mebibytes);
    std::printf("%-16s %10.1f %8.3f %10.1f %8.3f\n", names[i].c_str(), time, time / twinTime,
                memory, memory / twinMemory);
  }
}
