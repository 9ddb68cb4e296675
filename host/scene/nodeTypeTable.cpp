// SPDX-License-Identifier: Apache-2.0
#include "scene/nodeTypeTable.h"

namespace host
{

// Names and order follow Maya's node reference. Attributes that are missing here are learned from
// the files that use them.
const char *const kNodeTypeTable = R"(
type node
message msg message
caching cch bool
isHistoricallyInteresting ihi byte default=2
nodeState nds enum enum=Normal:HasNoEffect:Blocking
frozen fzn bool
attributeAliasList aal attributeAlias

type dagNode : node
visibility v bool default=1 key
intermediateObject io bool
template tmp bool
ghosting gh bool
instObjGroups iog compound[] instance {
  objectGroups og compound[] {
    objectGrpCompList gcl componentList
    objectGroupId gid long
    objectGrpColor gco short
  }
}
useObjectColor uoc byte
objectColor oc short
objectColorRGB obcc float3 names=objectColorR/obcr,objectColorG/obcg,objectColorB/obcb
wireColorRGB wfcc float3 names=wireColorR/wfcr,wireColorG/wfcg,wireColorB/wfcb
drawOverride do compound {
  overrideDisplayType ovdt enum enum=Normal:Template:Reference
  overrideLevelOfDetail ovlod enum enum=Full:BoundingBox
  overrideShading ovs bool default=1
  overrideTexturing ovt bool default=1
  overridePlayback ovp bool default=1
  overrideEnabled ove bool
  overrideVisibility ovv bool default=1
  overrideColor ovc byte
  overrideRGBColors ovrgbf bool
  overrideColorRGB ovrgb float3 names=overrideColorR/ovcr,overrideColorG/ovcg,overrideColorB/ovcb
}
worldMatrix wm matrix[] instance computed
worldInverseMatrix wim matrix[] instance computed
parentMatrix pm matrix[] instance computed
parentInverseMatrix pim matrix[] instance computed
matrix m matrix computed
inverseMatrix im matrix computed

type transform : dagNode
translate t double3 key
rotate r double3 key
rotateOrder ro enum enum=xyz:yzx:zxy:xzy:yxz:zyx
scale s double3 default=1 key
shear sh double3 names=shearXY/shxy,shearXZ/shxz,shearYZ/shyz
rotatePivot rp double3
rotatePivotTranslate rpt double3
scalePivot sp double3
scalePivotTranslate spt double3
rotateAxis ra double3
transMinusRotatePivot tmrp double3 computed
minTransLimit mntl double3 default=-1
maxTransLimit mxtl double3 default=1
minRotLimit mnrl double3 default=-45
maxRotLimit mxrl double3 default=45
minScaleLimit mnsl double3 default=-1
maxScaleLimit mxsl double3 default=1
inheritsTransform it bool default=1
offsetParentMatrix opm matrix
displayHandle dh bool
displayLocalAxis dla bool
displayRotatePivot drp bool
displayScalePivot dsp bool
xformMatrix xm matrix computed

type joint : transform
type typ enum default=0
otherType otp string
side sd enum enum=Center:Left:Right:None
jointOrient jo double3
jointOrientType jot string
segmentScaleCompensate ssc bool default=1
inverseScale is double3 default=1
preferredAngle pa double3
drawLabel dl bool
drawStyle ds enum enum=Bone:MultichildAsBox:None:Joint
radius radi double default=1
bindPose bps matrix

type shape : dagNode
type geometryShape : shape
compInstObjGroups ciog compound[] instance {
  compObjectGroups cog compound[] {
    compObjectGrpCompList cgcl componentList
    compObjectGroupId cgid long
  }
}
type deformableShape : geometryShape
type controlPoint : deformableShape
controlPoints cp double3[] names=xValue/xv,yValue/yv,zValue/zv
tweakLocation twl message

type mesh : controlPoint
inMesh i mesh
outMesh o mesh computed
worldMesh w mesh[] instance computed
vrts vt float3[] names=vrtx/vx,vrty/vy,vrtz/vz
edge ed long3[] names=edg1/e1,edg2/e2,edgh/eh
face fc polyFaces[]
pnts pt float3[] names=pntx/px,pnty/py,pntz/pz
normals n float3[] names=normalx/nx,normaly/ny,normalz/nz
uvSet uvst compound[] {
  uvSetName uvsn string
  uvSetPoints uvsp float2[] names=uvSetPointsU/uvpu,uvSetPointsV/uvpv
  uvSetTweakLocation uvtw message
}
currentUVSet cuvs string
colorSet clst compound[] {
  colorName clsn string
  clamped clam bool
  representation rprt enum
  colorSetPoints clsp double4[] names=colorSetPointsR/clpr,colorSetPointsG/clpg,colorSetPointsB/clpb,colorSetPointsA/clpa
}
currentColorSet ccls string
displayColorChannel dcc string
creaseData cd dataPolyComponent
creaseVertexData cvd dataPolyComponent
pinData pd dataPolyComponent[]
holeFaceData hfd dataPolyComponent
componentTags gtag compound[] {
  componentTagName gtagnm string
  componentTagContents gtagcmp componentList
}

type nurbsCurve : controlPoint
cached cc nurbsCurve
create cr nurbsCurve
local l nurbsCurve computed
worldSpace ws nurbsCurve[] instance computed

type nurbsSurface : controlPoint
cached cc nurbsSurface
create cr nurbsSurface
local l nurbsSurface computed
worldSpace ws nurbsSurface[] instance computed

type lattice : controlPoint
cached cc lattice
latticeInput li lattice
latticeOutput lo lattice computed
worldLattice wl lattice[] instance computed

type camera : shape
renderable rnd bool default=1
cameraAperture cap double2
focalLength fl double default=35
nearClipPlane ncp double default=0.1
farClipPlane fcp double default=10000
centerOfInterest coi double default=5
orthographic o bool
orthographicWidth ow double default=10
imageName imn string
depthName den string
maskName man string
homeCommand hc string
tumblePivot tp double3

type locator : geometryShape
localPosition lp double3
localScale los double3 default=1

type entity : node
type objectSet : entity
annotation an string
dagSetMembers dsm message[] unindexed
dnSetMembers dnsm message[] unindexed
memberWireframeColor mwc short default=-1
isLayer il bool
partition pa message
groupNodes gn message[] unindexed
usedBy ub message[]
verticesOnlySet vo bool
edgesOnlySet eo bool
facetsOnlySet fo bool
editPointsOnlySet epo bool
renderableOnlySet ro bool

type shadingEngine : objectSet
surfaceShader ss float3 names=surfaceShaderR/ssr,surfaceShaderG/ssg,surfaceShaderB/ssb
volumeShader vs float3 names=volumeShaderR/vsr,volumeShaderG/vsg,volumeShaderB/vsb
displacementShader ds float

type groupId : node
groupId id long

type groupParts : node
inputGeometry ig mesh
outputGeometry og mesh computed
groupId gi long
inputComponents ic componentList
inputRemoveComponent irc componentList

type geometryFilter : node
envelope en float default=1 min=0 max=1 key
input ip compound[] {
  inputGeometry ig mesh
  groupId gi long
  componentTagExpression gtg string
}
originalGeometry orggeom mesh[]
outputGeometry og mesh[] computed
function f long
fchild fc1 long

type weightGeometryFilter : geometryFilter

type tweak : geometryFilter
relativeTweak rt bool default=1
plist pl compound[] {
  controlPoints cp float3[] names=xValue/xv,yValue/yv,zValue/zv
}
vlist vl compound[] {
  vertex vt float3[] names=xVertex/vx,yVertex/vy,zVertex/vz
}

type skinCluster : geometryFilter
weightList wl compound[] {
  weights w double[]
}
bindPreMatrix pm matrix[]
geomMatrix gm matrix
matrix ma matrix[]
dropoffRate dr double default=4
dropoff dpf double[] default=4
smoothness smt double[]
lockWeights lw bool[]
maintainMaxInfluences mmi bool
maxInfluences mi long default=2
bindMethod bm enum enum=Closest distance:Closest in hierarchy:Heat map:Geodesic voxel
driverPoints drp mesh[]
basePoints bsp mesh[]
baseDirty bsd bool
paintWeights ptw doubleArray
paintTrans ptt message
paintArrDirty pad bool
useComponents uc bool
nurbsSamples ns short[]
useComponentsMatrix ucm bool
normalizeWeights nw enum default=1 enum=None:Interactive:Post
weightDistribution wd enum enum=Distance:Neighbors
deformUserNormals dun bool default=1
wtDrty wt bool
bindPose bp message
bindVolume bv message
heatmapFalloff hmf double
skinningMethod skm enum enum=Classic linear:Dual quaternion:Weight blended
blendWeights bw double[]
dqsSupportNonRigid dsnr bool
dqsScale dqs double3 default=1
influenceColor ifcl float3[] names=influenceColorR/ifcr,influenceColorG/ifcg,influenceColorB/ifcb

type blendShape : geometryFilter
type deltaMush : weightGeometryFilter
type tension : weightGeometryFilter
type morph : weightGeometryFilter
type solidify : weightGeometryFilter
type shrinkWrap : weightGeometryFilter
type proximityWrap : weightGeometryFilter
type softMod : weightGeometryFilter
type jiggle : weightGeometryFilter
type cluster : weightGeometryFilter
type ffd : geometryFilter
type nonLinear : weightGeometryFilter
type wrap : weightGeometryFilter
type wire : weightGeometryFilter
type sculpt : weightGeometryFilter

type dagPose : node
members m message[]
parents p message[]
global g bool[]
worldMatrix wm matrix[]
xformMatrix xm matrix[]
world w message
bindPose bp bool

type polyBase : node
output out mesh computed

type polyCreator : polyBase
type polyPrimitive : polyCreator
axis ax double3
paramWarn pw bool

type polyCube : polyPrimitive
width w double default=1 min=0
height h double default=1 min=0
depth d double default=1 min=0
subdivisionsWidth sw long default=1 min=1
subdivisionsHeight sh long default=1 min=1
subdivisionsDepth sd long default=1 min=1
createUVs cuv enum default=4

type polyPlane : polyPrimitive
width w double default=1 min=0
height h double default=1 min=0
subdivisionsWidth sw long default=10 min=1
subdivisionsHeight sh long default=10 min=1
createUVs cuv enum default=2

type polyCylinder : polyPrimitive
radius r double default=1 min=0
height h double default=2 min=0
subdivisionsAxis sa long default=20 min=3
subdivisionsHeight sh long default=1 min=1
subdivisionsCaps sc long default=0 min=0
roundCap rcp bool
createUVs cuv enum default=3

type polySphere : polyPrimitive
radius r double default=1 min=0
subdivisionsAxis sa long default=20 min=3
subdivisionsHeight sh long default=20 min=3
createUVs cuv enum default=2

type lambert : node
color c float3 default=0.5 names=colorR/cr,colorG/cg,colorB/cb
transparency it float3 names=transparencyR/itr,transparencyG/itg,transparencyB/itb
ambientColor ambc float3 names=ambientColorR/acr,ambientColorG/acg,ambientColorB/acb
incandescence ic float3 names=incandescenceR/ir,incandescenceG/ig,incandescenceB/ib
diffuse dc float default=0.8
outColor oc float3 computed names=outColorR/ocr,outColorG/ocg,outColorB/ocb

type materialInfo : node
shadingGroup sg message
material m message
texture t message[] unindexed

type partition : node
sets st message[] unindexed
)";

} // namespace host
