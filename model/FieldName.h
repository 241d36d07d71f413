#pragma once

namespace ZORVEL {

/// The name of a field, held once for the whole process: it costs a record one pointer, and two names are equal when
/// their pointers are. What is held grows with the vocabulary of attribute names, not with the number of records.
class FieldName {
 public:
  explicit FieldName(const wchar_t* text);

  /// Valid for the life of the process.
  const wchar_t* GetText() const { return m_text; }
  bool operator==(FieldName other) const { return m_text == other.m_text; }

 private:
  const wchar_t* m_text;
};

/// A name with the text that it is to get. The text is borrowed.
struct FieldText {
  FieldName name;
  const wchar_t* text;
};

}  // namespace ZORVEL
