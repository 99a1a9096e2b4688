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

std::vector<double> times(const Series& series, const char* job, double Measured::*clock) {
  std::vector<double> all;
  if (const auto* outcomes = find(series, job)) {
    for (const Outcome& outcome : *outcomes) all.push_back(outcome.measured.*clock);
  }
  return all;
}

/// Round by round, since what slows the machine for a while slows both sides alike.
double medianRatio(const std::vector<double>& above, const std::vector<double>& below) {
  std::vector<double> all;
  for (std::size_t i = 0; i < std::min(above.size(), below.size()); ++i) {
    if (below[i] > 0) all.push_back(above[i] / below[i]);
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

void printTarget(double figure, double most, int& missed) {
  if (most > 0) std::printf("   at most %.1f  %s", most, verdict(figure, most, missed));
}

/// A job of one size against one of the same or another size, by both clocks. Returns the ratio of the times.
double printRatio(const Series& above, const char* job, const Series& below, const char* against) {
  const auto ratioBy = [&](double Measured::*clock) {
    return medianRatio(times(above, job, clock), times(below, against, clock));
  };
  const double ratio = ratioBy(&Measured::seconds);
  std::printf(" %6.2f x (%.2f)", ratio, ratioBy(&Measured::processorSeconds));
  return ratio;
}

void printTimes(const Series& series, int& missed) {
  if (series.outcomes.empty()) return;
  std::printf("\n%d files\n  %-16s %9s %12s %9s   %s\n", series.files, "job", "seconds", "us per file",
              "peak MiB", "times its yardstick (in processor time)");
  for (const Job& job : jobs()) {
    const double seconds = median(times(series, job.name, &Measured::seconds));
    if (seconds == 0) continue;
    const int about = find(series, job.name)->front().measured.files;
    std::printf("  %-16s %9.3f %12.2f %9.1f  ", job.name, seconds,
                seconds * 1e6 / (about > 0 ? about : series.files), peakKiB(series, job.name) / 1024);
    if (find(series, job.against) != nullptr) {
      printTarget(printRatio(series, job.name, series, job.against), job.mostRatio, missed);
      std::printf("  of %s", job.against);
    }
    const bool counts = job.mostFiles == 0 || series.files <= job.mostFiles;
    if (counts && job.mostMilliseconds > 0) std::printf("  %.2f ms", seconds * 1000);
    printTarget(seconds * 1000, counts ? job.mostMilliseconds : 0, missed);
    std::printf("\n");
  }
}

/// A target stands for a doubling; a list too long to be shown gives its commands fewer files than that.
void printSlopes(const Series& smaller, const Series& larger, int& missed) {
  std::printf("\n%d files against %d (in processor time)\n", larger.files, smaller.files);
  for (const Job& job : jobs()) {
    const auto* before = find(smaller, job.name);
    const auto* after = find(larger, job.name);
    if (job.mostSlope == 0 || before == nullptr || after == nullptr) continue;
    const double growth = static_cast<double>(after->front().measured.files) / before->front().measured.files;
    const bool doubled = growth > 1.95 && growth < 2.05;
    std::printf("  %-16s", job.name);
    printTarget(printRatio(larger, job.name, smaller, job.name), doubled ? job.mostSlope : 0, missed);
    std::printf(doubled ? "\n" : "   for %.2f x the files\n", growth);
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

int report(const Series& browsing, const std::vector<Series>& sizes) {
  int missed = 0;
  printTimes(browsing, missed);
  for (const Series& series : sizes) printTimes(series, missed);
  for (std::size_t i = 1; i < sizes.size(); ++i) printSlopes(sizes[i - 1], sizes[i], missed);
  for (const Series& series : sizes) printMemory(series, missed);
  std::printf("\n%s\n",
              missed == 0 ? "all targets met" : (std::to_string(missed) + " targets missed").c_str());
  return missed;
}

}  // namespace velmora::bench
