#pragma once

#include <memory>
#include <vector>

#include "model/FieldName.h"

namespace ZORVEL {

enum DataType : int { TYPE_NONE = 0, TYPE_SPECIFIC = 1, TYPE_COMMON = 2 };

class RecordIndex;
enum class IndexedField;

enum FastFlag : int {
  FLAG_VALID = 0  ///< the element's folder was found on disk by the last validation
};

/// The generic record: named text fields, five flags and an ordered list of owned children. It knows nothing about
/// which fields exist. Names are compared exactly. Misuse is logged and answered with null, false or no change.
class DataContainer {
 public:
  DataContainer() = default;
  /// Destroys the children in order. The record's unique id names nothing from then on.
  virtual ~DataContainer();
  DataContainer(const DataContainer&) = delete;
  DataContainer& operator=(const DataContainer&) = delete;

  /// Adds the field or replaces its text. `data` may be a text that this record itself returned.
  void SetData(const wchar_t* field, const wchar_t* data);
  /// Null and a warning when the field is missing. The text stays valid until this very field is set again or the
  /// record is destroyed.
  const wchar_t* GetData(const wchar_t* field, bool& found) const;
  /// The same, faster, for a name that is kept.
  const wchar_t* GetData(FieldName field, bool& found) const;
  /// Tests without logging that a field is missing.
  bool CheckDatafield(const wchar_t* field) const;
  /// SetData for each of them. A record without fields keeps all their texts in one piece of memory.
  void SetAllData(const FieldText* fields, int count);

  /// Takes the child over; false for null.
  bool AddChild(DataContainer* child);
  /// Borrowed. Null for a negative index (silently), one beyond the end (logged) and a slot that holds null.
  DataContainer* GetChild(int index) const;
  /// Overwrites a slot, null allowed. The record that was there is not destroyed: it is the caller's from then on.
  bool SetChild(int index, DataContainer* child);
  int GetChildCount() const;
  /// Null for few children. Valid until the next change of any record.
  const RecordIndex* GetChildIndex(IndexedField field) const;

  /// Flags are numbered 0 to 4; any other number is logged and reads as false.
  bool GetFastFlag(int flag) const;
  void SetFastFlag(int flag, bool value);

  /// Can be set once; a later call is logged and ignored.
  void SetType(DataType type);
  DataType GetType() const;
  /// What the "type" field says: "common", "specific", or TYPE_NONE for anything else, no such field or a null record.
  static DataType ClassifyType(const DataContainer* record);

  /// The marker that RemoveInvalidChildren goes by; unrelated to FLAG_VALID. Once cleared it stays so.
  bool IsValid() const;
  void SetInvalid();
  /// Destroys the children whose marker is cleared; the others keep their order.
  void RemoveInvalidChildren();

 private:
  friend class UniqueRegistry;

  struct Field {
    FieldName name;
    const wchar_t* text;  // in m_texts or in ownText
    std::unique_ptr<wchar_t[]> ownText;
  };

  static const int FAST_FLAG_COUNT = 5;

  const Field* FindField(const wchar_t* name) const;
  const Field* FindField(FieldName name) const;
  static const wchar_t* TextOrComplaint(const Field* field, const wchar_t* name, bool& found);
  void SetField(FieldName name, const wchar_t* text, std::unique_ptr<wchar_t[]> ownText);

  // Few, in the order in which they were first set. A text keeps its place whatever becomes of the other fields.
  std::vector<Field> m_fields;
  std::unique_ptr<wchar_t[]> m_texts;
  std::vector<DataContainer*> m_children;
  DataType m_type = TYPE_NONE;
  // 0 until an id is asked for. No part of the record's content, hence given to constant records too.
  mutable int m_unique = 0;
  bool m_valid = true;
  bool m_fastFlags[FAST_FLAG_COUNT] = {};
};

}  // namespace ZORVEL
