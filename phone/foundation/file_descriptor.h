// An open file of the operating system.
#pragma once

#include <unistd.h>
#include <utility>

namespace phone {

/// Owns a file descriptor and closes it; below zero when the file could not be opened.
class FileDescriptor {
 public:
  explicit FileDescriptor(int number) : number_(number) {}
  FileDescriptor(FileDescriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  FileDescriptor& operator=(FileDescriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~FileDescriptor() {
    if (number_ >= 0) close(number_);
  }
  int number() const { return number_; }
  explicit operator bool() const { return number_ >= 0; }

 private:
  int number_;
};

}  // namespace phone
