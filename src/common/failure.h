#pragma once

#include <QString>
#include <stdexcept>

namespace tamo {

// What stops an event in the middle: a division by zero, a column that would need a negative number
// of blanks, a row that does not exist. `number` is the failure's number (the k...Error constants
// below); `text` says in plain words what failed, where, and what to do. Everything done before it
// stands.
//
// It is thrown wherever a rule has no answer of its own. Desk::Dispatch catches it, shows the text
// and goes on with the next event. Only a report that is stopped keeps the failure to itself.
class RunTimeFailure : public std::runtime_error {
 public:
  RunTimeFailure(int failureNumber, const QString& failureText)
      : std::runtime_error(failureText.toStdString()), number(failureNumber), text(failureText) {}

  int number;
  QString text;
};

inline constexpr int kNoError = 0;
inline constexpr int kInvalidArgument =
    5;                                // a negative width, a text shorter than what is asked of it
inline constexpr int kOverflow = 6;   // a result that no number holds
inline constexpr int kSubscript = 9;  // a row that does not exist
inline constexpr int kDivisionByZero = 11;
inline constexpr int kTooLarge = 14;  // a file far too large to be one of this program
inline constexpr int kFileNotFound = 53;
inline constexpr int kFileOther = 57;   // any other failure of the device
inline constexpr int kFileExists = 58;  // a new file was to be made where one is already
inline constexpr int kDiskFull = 61;
inline constexpr int kPastEnd = 62;  // a read past the end of a file
// A file or folder that was there earlier in this run, or that a list names, can't be found.
inline constexpr int kGone = 68;
inline constexpr int kNoAccess = 75;  // no right to read or write, or a folder in the file's place
inline constexpr int kPathNotFound = 76;  // the folder of the file does not exist
inline constexpr int kNotText = 321;      // a file that holds something else than text
// A file holds another text than the one that a waiting save was made from.
inline constexpr int kChangedMeanwhile = 1001;
// A save is done, but the device did not confirm that it outlives a power cut.
inline constexpr int kNotConfirmed = 1002;
// A save that was given up: another program has changed the file, and the estimator takes that.
inline constexpr int kTheirsTaken = 1003;

// The file was never there, which is no failure: its defaults stand, or its list is empty.
inline constexpr bool IsMissing(int number) {
  return number == kFileNotFound || number == kPathNotFound;
}

}  // namespace tamo
