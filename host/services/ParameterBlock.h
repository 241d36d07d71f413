#pragma once

#include <imtl.h>

#include <functional>
#include <string>
#include <variant>
#include <vector>

#include "host/services/Ref.h"

namespace host {

/// A parameter block whose values are the same at all times. Changes are recorded while theHold holds.
class ParameterBlock final : public IParamBlock2 {
 public:
  using Value = std::variant<float, int, Color, std::wstring, Ref<Mtl>, Ref<Texmap>>;
  struct Parameter {
    ParamID id;
    ParamType2 type;
    Value value;
  };

  /// `changed` is called after a value changed, by whatever way; it may be empty and must stay callable as long as the
  /// block.
  ParameterBlock(BlockID id, std::vector<Parameter> parameters, std::function<void()> changed = {});

  SClass_ID SuperClassID() override { return PARAMETER_BLOCK2_CLASS_ID; }
  int NumParams() override { return static_cast<int>(parameters_.size()); }
  BlockID ID() override { return id_; }
  /// -1 for an index that there is not.
  ParamID IndextoID(int index) override;
  int IDtoIndex(ParamID id) override;
  ParamType2 GetParameterType(ParamID id) override;

  BOOL SetValue(ParamID id, TimeValue t, float v, int tabIndex) override;
  BOOL SetValue(ParamID id, TimeValue t, int v, int tabIndex) override;
  BOOL SetValue(ParamID id, TimeValue t, Color& v, int tabIndex) override;
  BOOL SetValue(ParamID id, TimeValue t, const MCHAR* v, int tabIndex) override;
  BOOL SetValue(ParamID id, TimeValue t, Mtl* v, int tabIndex) override;
  BOOL SetValue(ParamID id, TimeValue t, Texmap* v, int tabIndex) override;

  BOOL GetValue(ParamID id, TimeValue t, float& v, Interval& valid, int tabIndex) override;
  BOOL GetValue(ParamID id, TimeValue t, int& v, Interval& valid, int tabIndex) override;
  BOOL GetValue(ParamID id, TimeValue t, Color& v, Interval& valid, int tabIndex) override;
  BOOL GetValue(ParamID id, TimeValue t, const MCHAR*& v, Interval& valid, int tabIndex) override;
  BOOL GetValue(ParamID id, TimeValue t, Mtl*& v, Interval& valid, int tabIndex) override;
  BOOL GetValue(ParamID id, TimeValue t, Texmap*& v, Interval& valid, int tabIndex) override;

  const std::vector<Parameter>& parameters() const { return parameters_; }

 private:
  BOOL set(ParamID id, const Value& value);
  BOOL setNumber(ParamID id, double value);
  BOOL getNumber(ParamID id, double& value);
  template <class T>
  const T* find(ParamID id) const;
  void store(std::size_t index, const Value& value);

  BlockID id_;
  std::vector<Parameter> parameters_;
  std::function<void()> changed_;
};

}  // namespace host
