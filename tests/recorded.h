#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>

// Tests whose answers stand in the files of tests/data. Whoever means to change one runs them with
// VELMORAN_RECORD=1, which writes the files anew, and looks at the difference.

/// Holds a text against the file of this name.
inline void ExpectRecorded(const std::string& name, const std::string& text) {
  const std::string path = VELMORAN_DATA "/" + name;
  if (std::getenv("VELMORAN_RECORD")) std::ofstream(path) << text;
  std::ostringstream recorded;
  recorded << std::ifstream(path).rdbuf();
  EXPECT_EQ(text, recorded.str()) << name;
}

/// Holds each line of the file against what `tell` answers: the case stands before a bar, the
/// answer behind it.
inline void ExpectAnswers(const std::string& name,
                          const std::function<std::string(const std::string& which)>& tell) {
  std::ifstream in(VELMORAN_DATA "/" + name);
  std::string text;
  for (std::string line; std::getline(in, line);) {
    const std::string which = line.substr(0, line.find(" |"));
    text += line.starts_with('#') ? line + '\n' : which + " | " + tell(which) + '\n';
  }
  ExpectRecorded(name, text);
}
