// The test program's start: one application without a display for all tests.

#include <ui/comune/aspetto.h>

#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication applicazione(argc, argv);
  lirmeto::ui::VestiApplicazione(applicazione, lirmeto::ui::Luce::Chiara);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
