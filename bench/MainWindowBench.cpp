#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImageReader>
#include <QMouseEvent>

#include "bench/OpenMainWindow.h"
#include "bench/PictureRepository.h"
#include "bench/PlainWindow.h"
#include "ui/MainWindow.h"
#include "ui/PictureCache.h"

namespace {

using bench::OpenMainWindow;
using bench::PictureRepository;
using bench::PlainWindow;
using bench::settle;

// Each click is the user's own, and ends when the window is drawn again.

void clothingClick(benchmark::State& state) {
  OpenMainWindow window(static_cast<int>(state.range(0)));
  for (int i = 0; i < 2; ++i) window.chooseCloth(i);
  int next = 0;
  for (auto _ : state) window.chooseCloth(next++ % 2);
}

void clothingClickFirstTime(benchmark::State& state) {
  OpenMainWindow window(1);
  const int before = ZORVEL::PictureCache::Instance().GetDecodedCount();
  int next = 0;
  for (auto _ : state) {
    state.PauseTiming();
    ZORVEL::PictureCache::Instance().Clear();
    state.ResumeTiming();
    window.chooseCloth(next++ % 2);
  }
  state.counters["pictures"] = benchmark::Counter(ZORVEL::PictureCache::Instance().GetDecodedCount() - before,
                                                  benchmark::Counter::kAvgIterations);
}

/// What a first click may take more than another one.
void decodeShownTab(benchmark::State& state) {
  const PictureRepository& repository = PictureRepository::ofSize(1);
  for (auto _ : state) {
    for (int i = 0; i < PictureRepository::POSES; ++i) {
      benchmark::DoNotOptimize(QImageReader(repository.posePicture(i).c_str()).read());
    }
  }
}

void plainPagesAgain(benchmark::State& state) {
  PlainWindow window;
  const int first = static_cast<int>(state.range(0));
  settle();
  for (auto _ : state) {
    window.rebuildFrom(first);
    settle();
  }
}

void poseClick(benchmark::State& state) {
  OpenMainWindow window(1);
  window.chooseCloth(0);
  for (int i = 0; i < 2; ++i) window.clickBox(0, i);
  int next = 0;
  for (auto _ : state) window.clickBox(0, next++ % 2);
}

void assetCheckBox(benchmark::State& state) {
  OpenMainWindow window(1);
  window.chooseCloth(0);
  window.showTab(PictureRepository::TABS - 1);
  for (auto _ : state) window.clickBox(PictureRepository::TABS - 1, 0);
}

void plainCheckStates(benchmark::State& state) {
  PlainWindow window;
  settle();
  for (auto _ : state) {
    window.changeCheckStates(500);
    settle();
  }
}

void characterClick(benchmark::State& state) {
  OpenMainWindow window(static_cast<int>(state.range(0)));
  for (auto _ : state) window.chooseCharacter();
}

void open(benchmark::State& state) {
  PictureRepository::ofSize(static_cast<int>(state.range(0))).load();
  for (auto _ : state) {
    ZORVEL::MainWindow::OpenMainWindow();
    settle();
    state.PauseTiming();
    bench::closeMainWindow();
    state.ResumeTiming();
  }
}

void openPlainTree(benchmark::State& state) {
  for (auto _ : state) {
    auto tree = bench::plainTree(static_cast<int>(state.range(0)), PictureRepository::CLOTHES);
    tree->show();
    settle();
    state.PauseTiming();
    tree.reset();
    state.ResumeTiming();
  }
}

BENCHMARK(plainPagesAgain)->Arg(0)->Unit(benchmark::kMillisecond);
BENCHMARK(clothingClick)->Arg(1)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK(clothingClickFirstTime)->Unit(benchmark::kMillisecond);
BENCHMARK(decodeShownTab)->Unit(benchmark::kMillisecond);
BENCHMARK(plainPagesAgain)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(poseClick)->Unit(benchmark::kMillisecond);
BENCHMARK(plainCheckStates)->Unit(benchmark::kMillisecond);
BENCHMARK(assetCheckBox)->Unit(benchmark::kMillisecond);
BENCHMARK(characterClick)->Arg(1)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK(openPlainTree)->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK(open)->Arg(1000)->Unit(benchmark::kMillisecond);

}  // namespace
