#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace schema {

/// Checks chart documents against their grammar, which is read once. One thread.
class SchemaCheck {
public:
  /// Reads the grammar of this version from the library's shared files. Throws
  /// std::runtime_error when that cannot be done.
  SchemaCheck();
  /// The same with another grammar and the files beside it that it includes.
  explicit SchemaCheck(const std::filesystem::path& grammar);
  ~SchemaCheck();
  SchemaCheck(const SchemaCheck&) = delete;
  SchemaCheck& operator=(const SchemaCheck&) = delete;

  /// What is wrong with a document, in the order it was found: each
  /// "<line>:<column>: <path of the element>: <why>", of a child's place at the end of
  /// its parent. Empty when nothing is. Where reading ends early, the last finding says
  /// why: what is not XML, a document type declaration, or a thousand nested elements.
  std::vector<std::string> findings(std::string_view xml) const;

private:
  struct Grammar;
  std::unique_ptr<Grammar> grammar_;
};

} // namespace schema
