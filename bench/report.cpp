#include "bench/report.h"

#include <algorithm>
#include <cstdio>

namespace velmora::bench {
namespace {

constexpr double mostKiBPerRow = 2.0;

double median(std::vector<double> values) {
  if (values.empty()) return 0;
  std::sort(values.begin(), values.end());
  const std::size_t half = values.size() / 2;
  return values.size() % 2 == 1 ? values[half] : (values[half - 1] + values[half]) / 2;
}

const std::vector<Outcome>* find(const Series& series, const char* job) {
  const auto found = job == nullptr ? series.outcomes.end() : series.outcomes.find(job);
  return found == series.outcomes.end() ? nullptr : &found->second;
}

double seconds(const Series& series, const char* job) {
  std::vector<double> all;
  if (const auto* outcomes = find(series, job)) {
    for (const Outcome& outcome : *outcomes) all.push_back(outcome.measured.seconds);
  }
  return median(all);
}

/// Median of the ratios within each round: what slows the machine for a while slows both sides alike.
double ratio(const Series& series, const char* job, const char* against) {
  const auto* above = find(series, job);
  const auto* below = find(series, against);
  if (above == nullptr || below == nullptr) return 0;
  std::vector<double> all;
  for (std::size_t i = 0; i < std::min(above->size(), below->size()); ++i) {
    if ((*below)[i].measured.seconds > 0)
      all.push_back((*above)[i].measured.seconds / (*below)[i].measured.seconds);
  }
  return median(all);
}

double peakKiB(const Series& series, const char* job) {
  std::vector<double> all;
  if (const auto* outcomes = find(series, job)) {
    for (const Outcome& outcome : *outcomes) all.push_back(static_cast<double>(outcome.peakKiB));
  }
  return median(all);
}

const char* verdict(double figure, double most, int& missed) {
  if (most == 0 || figure == 0) return "";
  if (figure <= most) return "ok";
  ++missed;
  return "OVER";
}

void printTimes(const Series& series, int& missed) {
  std::printf("\n%d files\n", series.files);
  std::printf("  %-16s %10s %12s %10s  %-22s %s\n", "job", "seconds", "us per file", "peak MiB", "ratio", "");
  for (const Job& job : jobs()) {
    const auto* outcomes = find(series, job.name);
    if (outcomes == nullptr) continue;
    const double time = seconds(series, job.name);
    std::printf("  %-16s %10.3f %12.2f %10.1f", job.name, time, time * 1e6 / series.files,
                peakKiB(series, job.name) / 1024);
    if (const double share = ratio(series, job.name, job.against); share > 0) {
      char text[64];
      std::snprintf(text, sizeof text, "%.2f x %s", share, job.against);
      std::printf("  %-22s", text);
      if (job.mostRatio > 0)
        std::printf(" at most %.1f  %s", job.mostRatio, verdict(share, job.mostRatio, missed));
    }
    std::printf("\n");
  }
}

void printSlopes(const Series& smaller, const Series& larger, int& missed) {
  std::printf("\n%d files against %d\n", larger.files, smaller.files);
  for (const Job& job : jobs()) {
    const double before = seconds(smaller, job.name);
    const double after = seconds(larger, job.name);
    if (job.mostSlope == 0 || before == 0 || after == 0) continue;
    // A target stands for a doubling.
    const bool doubled = larger.files == 2 * smaller.files;
    std::printf("  %-16s %6.2f x", job.name, after / before);
    if (doubled)
      std::printf("   at most %.1f  %s", job.mostSlope, verdict(after / before, job.mostSlope, missed));
    std::printf("\n");
  }
}

/// A row of the copy of the base costs what a listed file costs, so the target counts both.
void printMemory(const Series& series, int& missed) {
  const double empty = peakKiB(series, "empty");
  if (empty == 0) return;
  std::printf("\nmemory at %d files, above the empty program (%.1f MiB)\n", series.files, empty / 1024);
  for (const Job& job : jobs()) {
    const auto* outcomes = find(series, job.name);
    if (outcomes == nullptr || outcomes->front().measured.tableRows == 0) continue;
    const double above = peakKiB(series, job.name) - empty;
    const double perRow = above / outcomes->front().measured.tableRows;
    std::printf("  %-16s %6.2f KiB per row (%d rows)   at most %.1f  %s\n", job.name, perRow,
                outcomes->front().measured.tableRows, mostKiBPerRow, verdict(perRow, mostKiBPerRow, missed));
  }
}

}  // namespace

int report(const std::vector<Series>& sizes) {
  int missed = 0;
  for (const Series& series : sizes) printTimes(series, missed);
  for (std::size_t i = 1; i < sizes.size(); ++i) printSlopes(sizes[i - 1], sizes[i], missed);
  for (const Series& series : sizes) printMemory(series, missed);
  std::printf("\n%s\n",
              missed == 0 ? "all targets met" : (std::to_string(missed) + " targets missed").c_str());
  return missed;
}

}  // namespace velmora::bench
