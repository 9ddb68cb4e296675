// SPDX-License-Identifier: Apache-2.0
#include "scene/nodeTypeTable.h"

namespace host
{

// Transforms and shapes that rigs are built of. They have a row so that they stand in the DAG with
// the attributes of what they derive from, wherever a file meets them first; most of their own
// attributes are learned.
const char *const kDagTypeTable = R"(
type ikHandle : transform
startJoint hsj message
endEffector hee message
ikSolver hsv message
inCurve ic nurbsCurve
poleVector pv double3
offset off double
roll rol double key
twist twi double key
ikBlend ikb double default=1 key
rootOnCurve roc bool default=1
rootTwistMode rtm bool
dTwistControlEnable dtce bool
dWorldUpMatrix dwum matrix
dWorldUpMatrixEnd dwue matrix

type ikEffector : transform
handlePath hp message
hideDisplay hd bool

type constraint : transform
enableRestPosition erp bool default=1

type pointConstraint : constraint
constraintParentInverseMatrix cpim matrix
constraintTranslate ct double3
constraintRotatePivot crp double3
constraintRotateTranslate crt double3
constraintOffsetPolarity cop bool
offset o double3
restTranslate rst double3
type poleVectorConstraint : pointConstraint
pivotSpace ps matrix

type orientConstraint : constraint
constraintParentInverseMatrix cpim matrix
constraintRotateOrder cro enum
constraintJointOrient cjo double3
constraintRotate cr double3
offset o double3
restRotate rsrr double3
lastTargetRotation lr double3
interpType int enum default=1

type aimConstraint : constraint
constraintParentInverseMatrix cpim matrix
constraintTranslate ct double3
constraintRotatePivot crp double3
constraintRotateTranslate crt double3
constraintRotateOrder cro enum
constraintJointOrient cjo double3
constraintRotate cr double3
aimVector a double3
upVector u double3
worldUpVector wu double3
worldUpMatrix wum matrix
worldUpType wut enum default=3
offset o double3
restRotate rsrr double3
type lookAt : aimConstraint

type parentConstraint : constraint
constraintParentInverseMatrix cpim matrix
constraintTranslate ct double3
constraintRotatePivot crp double3
constraintRotateTranslate crt double3
constraintRotateOrder cro enum
constraintJointOrient cjo double3
constraintRotate cr double3
restTranslate rst double3
restRotate rsrr double3
lastTargetRotation lr double3
interpType int enum default=1

type scaleConstraint : constraint
constraintParentInverseMatrix cpim matrix
offset o double3 default=1
type normalConstraint : constraint
type tangentConstraint : constraint
type geometryConstraint : constraint
type pointOnPolyConstraint : constraint
type symmetryConstraint : constraint

type lodGroup : transform
type dagContainer : transform
type fosterParent : transform
type place3dTexture : transform
type unknownTransform : transform
type assembly : transform
type assemblyDefinition : assembly
type assemblyReference : assembly
type geometryVarGroup : transform
type curveVarGroup : geometryVarGroup
type meshVarGroup : geometryVarGroup
type subdivSurfaceVarGroup : geometryVarGroup
type surfaceVarGroup : geometryVarGroup
type nucleus : transform
type dynBase : transform
type pointEmitter : dynBase
type field : dynBase
type airField : field
type dragField : field
type gravityField : field
type newtonField : field
type radialField : field
type turbulenceField : field
type uniformField : field
type volumeAxisField : field
type vortexField : field

type light : shape
color cl float3 default=1 names=colorR/cr,colorG/cg,colorB/cb
intensity in float default=1
type ambientLight : light
type nonAmbientLightShapeNode : light
type nonExtendedLightShapeNode : nonAmbientLightShapeNode
type areaLight : nonExtendedLightShapeNode
type directionalLight : nonExtendedLightShapeNode
type pointLight : nonExtendedLightShapeNode
type spotLight : nonExtendedLightShapeNode
coneAngle ca double default=40
penumbraAngle pa double
type volumeLight : pointLight

type bezierCurve : nurbsCurve
type subdiv : controlPoint
type particle : deformableShape
type nBase : particle
type nCloth : nBase
type nParticle : nBase
type nRigid : nBase
type baseLattice : geometryShape
type clusterHandle : shape
type softModHandle : shape
type flexorShape : shape
type deformFunc : shape
type deformBend : deformFunc
type deformFlare : deformFunc
type deformSine : deformFunc
type deformSquash : deformFunc
type deformTwist : deformFunc
type deformWave : deformFunc
type implicitSphere : shape
type follicle : shape
type hairSystem : shape
type pfxGeometry : shape
type pfxHair : pfxGeometry
type pfxToon : pfxGeometry
type stroke : pfxGeometry
type fluidShape : shape
type dynamicConstraint : shape
type rigidBody : shape
type imagePlane : shape
type sketchPlane : shape
type greasePlane : sketchPlane
type snapshotShape : shape
type dimensionShape : shape
type annotationShape : dimensionShape
type arcLengthDimension : dimensionShape
type distanceDimShape : dimensionShape
type paramDimension : dimensionShape
type unknownDag : dagNode

type containerBase : node
type container : containerBase
)";

} // namespace host
