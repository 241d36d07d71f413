#include "host/services/ParameterBlock.h"

#include "host/services/Change.h"
#include "host/services/LookChanges.h"

namespace host {

ParameterBlock::ParameterBlock(BlockID id, std::vector<Parameter> parameters, std::function<void()> changed)
    : id_(id), parameters_(std::move(parameters)), changed_(std::move(changed)) {}

ParamID ParameterBlock::IndextoID(int index) {
  return index >= 0 && index < NumParams() ? parameters_[static_cast<std::size_t>(index)].id : ParamID{-1};
}

int ParameterBlock::IDtoIndex(ParamID id) {
  for (int i = 0; i < NumParams(); ++i) {
    if (IndextoID(i) == id) return i;
  }
  return -1;
}

ParamType2 ParameterBlock::GetParameterType(ParamID id) {
  const int index = IDtoIndex(id);
  return index < 0 ? TYPE_FLOAT : parameters_[static_cast<std::size_t>(index)].type;
}

BOOL ParameterBlock::SetValue(ParamID id, TimeValue /*t*/, float v, int /*tabIndex*/) { return setNumber(id, v); }
BOOL ParameterBlock::SetValue(ParamID id, TimeValue /*t*/, int v, int /*tabIndex*/) { return setNumber(id, v); }
BOOL ParameterBlock::SetValue(ParamID id, TimeValue /*t*/, Color& v, int /*tabIndex*/) { return set(id, v); }
BOOL ParameterBlock::SetValue(ParamID id, TimeValue /*t*/, const MCHAR* v, int /*tabIndex*/) {
  return set(id, std::wstring(v != nullptr ? v : L""));
}
BOOL ParameterBlock::SetValue(ParamID id, TimeValue /*t*/, Mtl* v, int /*tabIndex*/) { return set(id, Ref<Mtl>(v)); }
BOOL ParameterBlock::SetValue(ParamID id, TimeValue /*t*/, Texmap* v, int /*tabIndex*/) {
  return set(id, Ref<Texmap>(v));
}

BOOL ParameterBlock::GetValue(ParamID id, TimeValue /*t*/, float& v, Interval& /*valid*/, int /*tabIndex*/) {
  double number = 0.0;
  if (getNumber(id, number) == FALSE) return FALSE;
  v = static_cast<float>(number);
  return TRUE;
}

BOOL ParameterBlock::GetValue(ParamID id, TimeValue /*t*/, int& v, Interval& /*valid*/, int /*tabIndex*/) {
  double number = 0.0;
  if (getNumber(id, number) == FALSE) return FALSE;
  v = static_cast<int>(number);
  return TRUE;
}

BOOL ParameterBlock::GetValue(ParamID id, TimeValue /*t*/, Color& v, Interval& /*valid*/, int /*tabIndex*/) {
  const auto* value = find<Color>(id);
  if (value == nullptr) return FALSE;
  v = *value;
  return TRUE;
}

BOOL ParameterBlock::GetValue(ParamID id, TimeValue /*t*/, const MCHAR*& v, Interval& /*valid*/, int /*tabIndex*/) {
  const auto* value = find<std::wstring>(id);
  if (value == nullptr) return FALSE;
  v = value->c_str();
  return TRUE;
}

BOOL ParameterBlock::GetValue(ParamID id, TimeValue /*t*/, Mtl*& v, Interval& /*valid*/, int /*tabIndex*/) {
  const auto* value = find<Ref<Mtl>>(id);
  if (value == nullptr) return FALSE;
  v = value->get();
  return TRUE;
}

BOOL ParameterBlock::GetValue(ParamID id, TimeValue /*t*/, Texmap*& v, Interval& /*valid*/, int /*tabIndex*/) {
  const auto* value = find<Ref<Texmap>>(id);
  if (value == nullptr) return FALSE;
  v = value->get();
  return TRUE;
}

BOOL ParameterBlock::set(ParamID id, const Value& value) {
  const int found = IDtoIndex(id);
  if (found < 0) return FALSE;
  const auto index = static_cast<std::size_t>(found);
  const Value before = parameters_[index].value;
  if (before.index() != value.index()) return FALSE;
  if (before == value) return TRUE;
  const Ref<ParameterBlock> self(this);
  applyChange([self, index, before] { self->store(index, before); },
              [self, index, value] { self->store(index, value); });
  return TRUE;
}

BOOL ParameterBlock::setNumber(ParamID id, double value) {
  if (find<int>(id) != nullptr) return set(id, static_cast<int>(value));
  return set(id, static_cast<float>(value));
}

BOOL ParameterBlock::getNumber(ParamID id, double& value) {
  if (const auto* number = find<float>(id)) {
    value = *number;
    return TRUE;
  }
  if (const int* number = find<int>(id)) {
    value = *number;
    return TRUE;
  }
  return FALSE;
}

template <class T>
const T* ParameterBlock::find(ParamID id) const {
  for (const Parameter& parameter : parameters_) {
    if (parameter.id == id) return std::get_if<T>(&parameter.value);
  }
  return nullptr;
}

void ParameterBlock::store(std::size_t index, const Value& value) {
  parameters_[index].value = value;
  LookChanges::instance().tell();
  if (changed_) changed_();
}

}  // namespace host
