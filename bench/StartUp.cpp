// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// Times programs from their start to the first frame of their window that is painted, from outside: through the X
// server on DISPLAY, which must be empty and black (Xvfb without a window manager).
//
//     bench-startup RUNS COMMAND [ARGUMENT...] [-- COMMAND [ARGUMENT...]]...
//
// The commands take turns, so that a machine that slows down slows them all. Prints the median of each and its ratio to
// the first, for the time and for the resident memory at that moment.

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

struct Run {
  double milliseconds = 0.0;
  double mebibytes = 0.0;
};

struct Program {
  std::vector<char*> arguments;  // ends with null
  std::vector<Run> runs;
};

/// Whether a point in the middle of the screen shows anything but the black of an empty server.
bool isPainted(Display* display) {
  const int screen = DefaultScreen(display);
  XImage* pixel = XGetImage(display, RootWindow(display, screen), DisplayWidth(display, screen) / 3,
                            DisplayHeight(display, screen) / 3, 1, 1, AllPlanes, ZPixmap);
  if (!pixel) return false;
  const bool painted = (XGetPixel(pixel, 0, 0) & 0xFFFFFF) != 0;
  XDestroyImage(pixel);
  return painted;
}

double residentMebibytes(pid_t process) {
  std::ifstream status("/proc/" + std::to_string(process) + "/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with("VmRSS:")) return std::atof(line.c_str() + 6) / 1024.0;
  }
  return 0.0;
}

bool waitUntil(Display* display, bool painted) {
  const auto limit = Clock::now() + std::chrono::seconds(20);
  while (isPainted(display) != painted) {
    if (Clock::now() > limit) return false;
    std::this_thread::sleep_for(std::chrono::microseconds(200));
  }
  return true;
}

bool time(Display* display, Program& program, bool counts) {
  if (!waitUntil(display, false)) return false;
  const auto start = Clock::now();
  const pid_t child = ::fork();
  if (child == 0) {
    ::execvp(program.arguments.front(), program.arguments.data());
    ::_exit(127);
  }
  const bool painted = waitUntil(display, true);
  const std::chrono::duration<double, std::milli> took = Clock::now() - start;
  if (counts) program.runs.push_back({took.count(), residentMebibytes(child)});
  ::kill(child, SIGKILL);
  ::waitpid(child, nullptr, 0);
  return painted;
}

double median(const Program& program, double Run::*figure) {
  std::vector<double> values;
  for (const Run& run : program.runs) values.push_back(run.*figure);
  std::ranges::sort(values);
  return values[values.size() / 2];
}

}  // namespace

int main(int argc, char** argv) {
  const int runs = argc > 2 ? std::atoi(argv[1]) : 0;
  if (runs < 1) {
    std::fprintf(stderr, "usage: %s RUNS COMMAND [ARGUMENT...] [-- COMMAND [ARGUMENT...]]...\n", argv[0]);
    return 2;
  }
  std::vector<Program> programs(1);
  for (int i = 2; i < argc; ++i) {
    if (std::string_view(argv[i]) == "--") {
      programs.emplace_back();
    } else {
      programs.back().arguments.push_back(argv[i]);
    }
  }
  for (Program& program : programs) program.arguments.push_back(nullptr);

  Display* display = XOpenDisplay(nullptr);
  if (!display) {
    std::fprintf(stderr, "There is no X server on DISPLAY.\n");
    return 1;
  }
  for (int run = -1; run < runs; ++run) {  // the first round warms up
    for (Program& program : programs) {
      if (time(display, program, run >= 0)) continue;
      std::fprintf(stderr, "%s shows no window\n", program.arguments.front());
      return 1;
    }
  }
  for (const Program& program : programs) {
    const double took = median(program, &Run::milliseconds);
    const double memory = median(program, &Run::mebibytes);
    std::printf("%-40s %7.1f ms  %5.2fx   %6.1f MiB  %5.2fx\n", program.arguments.front(), took,
                took / median(programs.front(), &Run::milliseconds), memory,
                memory / median(programs.front(), &Run::mebibytes));
  }
  XCloseDisplay(display);
  return 0;
}
