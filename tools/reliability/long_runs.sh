#!/usr/bin/env bash
# Long reliability runs of the tests:   long_runs.sh [user|fuzz|days|exe]...   (all of them by default)
#   user    random use of every program           QDIX_EVENTS=1000000
#   fuzz    any bytes as files and topics         QDIX_FUZZ_RUNS=5000
#   days    days of the program on stepped time   QDIX_SOAK_DAYS=60
#   exe     the shipped exe under Wine            QDIX_TIPS=10000 QDIX_MENUS=1000
# The variables set the length, QDIX_SEED the first seed. A failing run prints its seed.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/../.."
export QDIX_EVENTS=${QDIX_EVENTS:-1000000} QDIX_SOAK_DAYS=${QDIX_SOAK_DAYS:-60}
export QDIX_FUZZ_RUNS=${QDIX_FUZZ_RUNS:-5000}
export QDIX_TIPS=${QDIX_TIPS:-10000} QDIX_MENUS=${QDIX_MENUS:-1000}

runs=("$@")
if ((${#runs[@]} == 0)); then runs=(user fuzz days exe); fi

for run in "${runs[@]}"; do
  case $run in
    user)
      # Without sanitizers, which take ten times as long.
      tools/setup/build.sh host fuzz_tests
      build/host/fuzz_tests --gtest_filter='*Random*User*:-*Fuzz*'
      ;;
    fuzz)
      tools/setup/build.sh host fuzz_tests
      build/host/fuzz_tests --gtest_filter='*Fuzz*'
      ;;
    days)
      tools/setup/build.sh host soak_tests
      build/host/soak_tests
      ;;
    exe)
      tools/wine/get_wine.sh
      tools/setup/build.sh win9x
      tools/setup/build.sh win9x-tests e2e_tests
      tools/wine/prefix.sh
      tools/desktop/desktop.sh run tools/wine/wine.sh build/win9x-tests/e2e_tests.exe --gtest_filter='SoakSession.*'
      ;;
    *)
      sed -n '2,8s/^# //p' "${BASH_SOURCE[0]}" >&2
      exit 2
      ;;
  esac
done
