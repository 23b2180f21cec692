#include "kxapi/adapter/Conversions.h"
#include "tests/adapter/ExampleBlock.h"

/// An example of an adapted companion library.
namespace {

void turn(const KXCalibRectParameters* in, int camera, const double* rotation, KXCalibRectParameters* out) {
    ExampleBlock block;
    block.takeSmall(*in);
    double columns[9];
    kxadapter::transpose(rotation, columns);
    dcTurn(block.bytes(), camera, columns, block.bytes());
    *out = block.small();
}

}  // namespace

DC_EXPORT void KXUpdateThirdCameraRotation(const KXCalibRectParameters* in, const double* rotation,
                                           KXCalibRectParameters* out) {
    turn(in, 0, rotation, out);
}

DC_EXPORT void KXUpdatePlatformCameraRotation(const KXCalibRectParameters* in, const double* rotation,
                                              KXCalibRectParameters* out) {
    turn(in, 1, rotation, out);
}
