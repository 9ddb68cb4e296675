//Maya ASCII 2017 scene
//Name: bent_arm.ma
//Codeset: UTF-8
requires maya "2017";
currentUnit -l centimeter -a degree -t film;
createNode transform -s -n "persp";
	setAttr ".v" no;
	setAttr ".t" -type "double3" 28 21 28;
	setAttr ".r" -type "double3" -27.93835272960238 45 0;
createNode camera -s -n "perspShape" -p "persp";
createNode transform -s -n "top";
	setAttr ".v" no;
	setAttr ".t" -type "double3" 0 1000.1 0;
	setAttr ".r" -type "double3" -90 0 0;
createNode camera -s -n "topShape" -p "top";
	setAttr ".o" yes;
createNode transform -s -n "front";
	setAttr ".v" no;
	setAttr ".t" -type "double3" 0 0 1000.1;
	setAttr ".r" -type "double3" 0 0 0;
createNode camera -s -n "frontShape" -p "front";
	setAttr ".o" yes;
createNode transform -s -n "side";
	setAttr ".v" no;
	setAttr ".t" -type "double3" 1000.1 0 0;
	setAttr ".r" -type "double3" 0 90 0;
createNode camera -s -n "sideShape" -p "side";
	setAttr ".o" yes;
createNode transform -n "arm";
createNode mesh -n "armShape" -p "arm";
	setAttr -s 2 ".iog[0].og";
createNode mesh -n "armShapeOrig" -p "arm";
	setAttr ".io" yes;
	setAttr -s 58 ".vt[0:57]" 0.42426407 -4 -0.42426407 3.6739406e-17 -4 -0.6 -0.42426407 -4
		-0.42426407 -0.6 -4 -7.347881e-17 -0.42426407 -4 0.42426407 -1.1021821e-16 -4 0.6 0.42426407 -4
		0.42426407 0.6 -4 1.4695762e-16 0.42426407 -2.6666667 -0.42426407 3.6739406e-17 -2.6666667 -0.6
		-0.42426407 -2.6666667 -0.42426407 -0.6 -2.6666667 -7.347881e-17 -0.42426407 -2.6666667 0.42426407
		-1.1021821e-16 -2.6666667 0.6 0.42426407 -2.6666667 0.42426407 0.6 -2.6666667 1.4695762e-16
		0.42426407 -1.3333334 -0.42426407 3.6739406e-17 -1.3333334 -0.6 -0.42426407 -1.3333334 -0.42426407
		-0.6 -1.3333334 -7.347881e-17 -0.42426407 -1.3333334 0.42426407 -1.1021821e-16 -1.3333334 0.6
		0.42426407 -1.3333334 0.42426407 0.6 -1.3333334 1.4695762e-16 0.42426407 0 -0.42426407
		3.6739406e-17 0 -0.6 -0.42426407 0 -0.42426407 -0.6 0 -7.347881e-17 -0.42426407 0 0.42426407
		-1.1021821e-16 0 0.6 0.42426407 0 0.42426407 0.6 0 1.4695762e-16 0.42426407 1.3333334 -0.42426407
		3.6739406e-17 1.3333334 -0.6 -0.42426407 1.3333334 -0.42426407 -0.6 1.3333334 -7.347881e-17
		-0.42426407 1.3333334 0.42426407 -1.1021821e-16 1.3333334 0.6 0.42426407 1.3333334 0.42426407 0.6
		1.3333334 1.4695762e-16 0.42426407 2.6666667 -0.42426407 3.6739406e-17 2.6666667 -0.6 -0.42426407
		2.6666667 -0.42426407 -0.6 2.6666667 -7.347881e-17 -0.42426407 2.6666667 0.42426407 -1.1021821e-16
		2.6666667 0.6 0.42426407 2.6666667 0.42426407 0.6 2.6666667 1.4695762e-16 0.42426407 4 -0.42426407
		3.6739406e-17 4 -0.6 -0.42426407 4 -0.42426407 -0.6 4 -7.347881e-17 -0.42426407 4 0.42426407
		-1.1021821e-16 4 0.6 0.42426407 4 0.42426407 0.6 4 1.4695762e-16 0 -4 0 0 4 0;
	setAttr -s 120 ".ed[0:119]" 0 1 0 1 9 0 9 8 0 8 0 0 1 2 0 2 10 0 10 9 0 2 3 0 3 11 0 11 10 0 3 4 0
		4 12 0 12 11 0 4 5 0 5 13 0 13 12 0 5 6 0 6 14 0 14 13 0 6 7 0 7 15 0 15 14 0 7 0 0 8 15 0 9 17 0
		17 16 0 16 8 0 10 18 0 18 17 0 11 19 0 19 18 0 12 20 0 20 19 0 13 21 0 21 20 0 14 22 0 22 21 0 15
		23 0 23 22 0 16 23 0 17 25 0 25 24 0 24 16 0 18 26 0 26 25 0 19 27 0 27 26 0 20 28 0 28 27 0 21 29
		0 29 28 0 22 30 0 30 29 0 23 31 0 31 30 0 24 31 0 25 33 0 33 32 0 32 24 0 26 34 0 34 33 0 27 35 0
		35 34 0 28 36 0 36 35 0 29 37 0 37 36 0 30 38 0 38 37 0 31 39 0 39 38 0 32 39 0 33 41 0 41 40 0 40
		32 0 34 42 0 42 41 0 35 43 0 43 42 0 36 44 0 44 43 0 37 45 0 45 44 0 38 46 0 46 45 0 39 47 0 47 46
		0 40 47 0 41 49 0 49 48 0 48 40 0 42 50 0 50 49 0 43 51 0 51 50 0 44 52 0 52 51 0 45 53 0 53 52 0
		46 54 0 54 53 0 47 55 0 55 54 0 48 55 0 0 56 0 56 1 0 56 2 0 56 3 0 56 4 0 56 5 0 56 6 0 56 7 0 49
		57 0 57 48 0 50 57 0 51 57 0 52 57 0 53 57 0 54 57 0 55 57 0;
	setAttr -s 64 -ch 240 ".fc[0:63]" -type "polyFaces" f 4 0 1 2 3 f 4 4 5 6 -2 f 4 7 8 9 -6 f 4 10 11
		12 -9 f 4 13 14 15 -12 f 4 16 17 18 -15 f 4 19 20 21 -18 f 4 22 -4 23 -21 f 4 -3 24 25 26 f 4 -7
		27 28 -25 f 4 -10 29 30 -28 f 4 -13 31 32 -30 f 4 -16 33 34 -32 f 4 -19 35 36 -34 f 4 -22 37 38
		-36 f 4 -24 -27 39 -38 f 4 -26 40 41 42 f 4 -29 43 44 -41 f 4 -31 45 46 -44 f 4 -33 47 48 -46 f 4
		-35 49 50 -48 f 4 -37 51 52 -50 f 4 -39 53 54 -52 f 4 -40 -43 55 -54 f 4 -42 56 57 58 f 4 -45 59
		60 -57 f 4 -47 61 62 -60 f 4 -49 63 64 -62 f 4 -51 65 66 -64 f 4 -53 67 68 -66 f 4 -55 69 70 -68 f
		4 -56 -59 71 -70 f 4 -58 72 73 74 f 4 -61 75 76 -73 f 4 -63 77 78 -76 f 4 -65 79 80 -78 f 4 -67 81
		82 -80 f 4 -69 83 84 -82 f 4 -71 85 86 -84 f 4 -72 -75 87 -86 f 4 -74 88 89 90 f 4 -77 91 92 -89 f
		4 -79 93 94 -92 f 4 -81 95 96 -94 f 4 -83 97 98 -96 f 4 -85 99 100 -98 f 4 -87 101 102 -100 f 4
		-88 -91 103 -102 f 3 -1 104 105 f 3 -5 -106 106 f 3 -8 -107 107 f 3 -11 -108 108 f 3 -14 -109 109
		f 3 -17 -110 110 f 3 -20 -111 111 f 3 -23 -112 -105 f 3 -90 112 113 f 3 -93 114 -113 f 3 -95 115
		-115 f 3 -97 116 -116 f 3 -99 117 -117 f 3 -101 118 -118 f 3 -103 119 -119 f 3 -104 -114 -120;
createNode joint -n "shoulder";
	addAttr -ci true -sn "liw" -ln "lockInfluenceWeights" -min 0 -max 1 -at "bool";
	setAttr ".uoc" 1;
	setAttr ".oc" 3;
	setAttr ".t" -type "double3" 0 -4 0;
	setAttr ".bps" -type "matrix" 1 0 0 0 0 1 0 0 0 0 1 0 0 -4 0 1;
createNode joint -n "elbow" -p "shoulder";
	addAttr -ci true -sn "liw" -ln "lockInfluenceWeights" -min 0 -max 1 -at "bool";
	setAttr ".uoc" 1;
	setAttr ".oc" 6;
	setAttr ".t" -type "double3" 0 4 0;
	setAttr ".rz" 35;
	setAttr ".bps" -type "matrix" 1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1;
createNode joint -n "wrist" -p "elbow";
	addAttr -ci true -sn "liw" -ln "lockInfluenceWeights" -min 0 -max 1 -at "bool";
	setAttr ".uoc" 1;
	setAttr ".oc" 1;
	setAttr ".t" -type "double3" 0 2.7 0;
	setAttr ".rz" 10;
	setAttr ".bps" -type "matrix" 1 0 0 0 0 1 0 0 0 0 1 0 0 2.7 0 1;
createNode joint -n "fingers" -p "wrist";
	addAttr -ci true -sn "liw" -ln "lockInfluenceWeights" -min 0 -max 1 -at "bool";
	setAttr ".t" -type "double3" 0 1.2999999999999998 0;
	setAttr ".bps" -type "matrix" 1 0 0 0 0 1 0 0 0 0 1 0 0 4 0 1;
createNode joint -n "elbowHelper" -p "elbow";
	addAttr -ci true -sn "liw" -ln "lockInfluenceWeights" -min 0 -max 1 -at "bool";
	setAttr ".t" -type "double3" 0 0 -1;
	setAttr ".bps" -type "matrix" 1 0 0 0 0 1 0 0 0 0 1 0 0 0 -1 1;
createNode skinCluster -n "armSkin";
	setAttr -s 58 ".wl";
	setAttr -s 3 ".wl[0].w[0:2]" 0.9994527896255176 0.0004839502360587828 6.326013842360823e-05;
	setAttr -s 3 ".wl[1].w[0:2]" 0.9994527895638987 0.000483950290463863 6.326014563744976e-05;
	setAttr -s 3 ".wl[2].w[0:2]" 0.9994527896255176 0.0004839502360587828 6.326013842360823e-05;
	setAttr -s 3 ".wl[3].w[0:2]" 0.9994527895638987 0.000483950290463863 6.326014563744976e-05;
	setAttr -s 3 ".wl[4].w[0:2]" 0.9994527896255176 0.0004839502360587828 6.326013842360823e-05;
	setAttr -s 3 ".wl[5].w[0:2]" 0.9994527895638987 0.000483950290463863 6.326014563744976e-05;
	setAttr -s 3 ".wl[6].w[0:2]" 0.9994527896255176 0.0004839502360587828 6.326013842360823e-05;
	setAttr -s 3 ".wl[7].w[0:2]" 0.9994527895638987 0.000483950290463863 6.326014563744976e-05;
	setAttr -s 3 ".wl[8].w[0:2]" 0.9975318504136975 0.002316121569249667 0.00015202801705276845;
	setAttr -s 3 ".wl[9].w[0:2]" 0.9975318501435526 0.002316121822166698 0.00015202803428066852;
	setAttr -s 3 ".wl[10].w[0:2]" 0.9975318504136975 0.002316121569249667 0.00015202801705276845;
	setAttr -s 3 ".wl[11].w[0:2]" 0.9975318501435526 0.002316121822166698 0.00015202803428066852;
	setAttr -s 3 ".wl[12].w[0:2]" 0.9975318504136975 0.002316121569249667 0.00015202801705276845;
	setAttr -s 3 ".wl[13].w[0:2]" 0.9975318501435526 0.002316121822166698 0.00015202803428066852;
	setAttr -s 3 ".wl[14].w[0:2]" 0.9975318504136975 0.002316121569249667 0.00015202801705276845;
	setAttr -s 3 ".wl[15].w[0:2]" 0.9975318501435526 0.002316121822166698 0.00015202803428066852;
	setAttr -s 2 ".wl[16].w[0:1]" 0.8 0.2;
	setAttr -s 2 ".wl[17].w[0:1]" 0.8 0.2;
	setAttr -s 2 ".wl[18].w[0:1]" 0.8 0.2;
	setAttr -s 2 ".wl[19].w[0:1]" 0.8 0.2;
	setAttr -s 2 ".wl[20].w[0:1]" 0.8 0.2;
	setAttr -s 2 ".wl[21].w[0:1]" 0.8 0.2;
	setAttr -s 2 ".wl[22].w[0:1]" 0.8 0.2;
	setAttr -s 2 ".wl[23].w[0:1]" 0.8 0.2;
	setAttr -s 2 ".wl[24].w[0:1]" 0.5 0.5;
	setAttr -s 2 ".wl[25].w[0:1]" 0.5 0.5;
	setAttr -s 2 ".wl[26].w[0:1]" 0.5 0.5;
	setAttr -s 2 ".wl[27].w[0:1]" 0.5 0.5;
	setAttr -s 2 ".wl[28].w[0:1]" 0.5 0.5;
	setAttr -s 2 ".wl[29].w[0:1]" 0.5 0.5;
	setAttr -s 2 ".wl[30].w[0:1]" 0.5 0.5;
	setAttr -s 2 ".wl[31].w[0:1]" 0.5 0.5;
	setAttr -s 2 ".wl[32].w[0:1]" 0.15 0.85;
	setAttr -s 2 ".wl[33].w[0:1]" 0.15 0.85;
	setAttr -s 2 ".wl[34].w[0:1]" 0.15 0.85;
	setAttr -s 2 ".wl[35].w[0:1]" 0.15 0.85;
	setAttr -s 2 ".wl[36].w[0:1]" 0.15 0.85;
	setAttr -s 2 ".wl[37].w[0:1]" 0.15 0.85;
	setAttr -s 2 ".wl[38].w[0:1]" 0.15 0.85;
	setAttr -s 2 ".wl[39].w[0:1]" 0.15 0.85;
	setAttr -s 3 ".wl[40].w[1:3]" 0.4945075205032851 0.49146909351619655 0.01402338598051831;
	setAttr -s 3 ".wl[41].w[1:3]" 0.4945075197540246 0.4914690929454603 0.01402338730051509;
	setAttr -s 3 ".wl[42].w[1:3]" 0.4945075205032851 0.49146909351619655 0.01402338598051831;
	setAttr -s 3 ".wl[43].w[1:3]" 0.4945075197540246 0.4914690929454603 0.01402338730051509;
	setAttr -s 3 ".wl[44].w[1:3]" 0.4945075205032851 0.49146909351619655 0.01402338598051831;
	setAttr -s 3 ".wl[45].w[1:3]" 0.4945075197540246 0.4914690929454603 0.01402338730051509;
	setAttr -s 3 ".wl[46].w[1:3]" 0.4945075205032851 0.49146909351619655 0.01402338598051831;
	setAttr -s 3 ".wl[47].w[1:3]" 0.4945075197540246 0.4914690929454603 0.01402338730051509;
	setAttr -s 3 ".wl[48].w[1:3]" 0.015185246481701144 0.4924073767591494 0.4924073767591494;
	setAttr -s 3 ".wl[49].w[1:3]" 0.015185247899613553 0.4924073760501932 0.4924073760501932;
	setAttr -s 3 ".wl[50].w[1:3]" 0.015185246481701144 0.4924073767591494 0.4924073767591494;
	setAttr -s 3 ".wl[51].w[1:3]" 0.015185247899613553 0.4924073760501932 0.4924073760501932;
	setAttr -s 3 ".wl[52].w[1:3]" 0.015185246481701144 0.4924073767591494 0.4924073767591494;
	setAttr -s 3 ".wl[53].w[1:3]" 0.015185247899613553 0.4924073760501932 0.4924073760501932;
	setAttr -s 3 ".wl[54].w[1:3]" 0.015185246481701144 0.4924073767591494 0.4924073767591494;
	setAttr -s 3 ".wl[55].w[1:3]" 0.015185247899613553 0.4924073760501932 0.4924073760501932;
	setAttr ".wl[56].w[0]" 1;
	setAttr ".wl[57].w[3]" 1;
	setAttr -s 5 ".pm";
	setAttr ".pm[0]" -type "matrix" 1 0 0 0 0 1 0 0 0 0 1 0 0 4 0 1;
	setAttr ".pm[1]" -type "matrix" 1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1;
	setAttr ".pm[2]" -type "matrix" 1 0 0 0 0 1 0 0 0 0 1 0 0 -2.7 0 1;
	setAttr ".pm[3]" -type "matrix" 1 0 0 0 0 1 0 0 0 0 1 0 0 -4 0 1;
	setAttr ".pm[4]" -type "matrix" 1 0 0 0 0 1 0 0 0 0 1 0 0 0 1 1;
	setAttr ".gm" -type "matrix" 1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1;
	setAttr -s 5 ".ma";
	setAttr -s 5 ".dpf[0:4]" 4 4 4 4 4;
	setAttr -s 5 ".lw";
	setAttr ".mi" 3;
	setAttr ".ucm" yes;
	setAttr -s 5 ".ifcl";
createNode objectSet -n "armSkinSet";
	setAttr ".ihi" 0;
	setAttr ".vo" yes;
createNode groupId -n "armSkinGroupId";
	setAttr ".ihi" 0;
createNode groupParts -n "armSkinGroupParts";
	setAttr ".ihi" 0;
	setAttr ".ic" -type "componentList" 1 "vtx[*]";
createNode tweak -n "tweak1";
createNode objectSet -n "tweakSet1";
	setAttr ".ihi" 0;
	setAttr ".vo" yes;
createNode groupId -n "groupId2";
	setAttr ".ihi" 0;
createNode groupParts -n "groupParts2";
	setAttr ".ihi" 0;
	setAttr ".ic" -type "componentList" 1 "vtx[*]";
createNode dagPose -n "bindPose1";
	setAttr -s 4 ".m";
	setAttr -s 4 ".p";
	setAttr -s 4 ".wm";
	setAttr -s 4 ".xm";
	setAttr ".xm[0]" -type "matrix" "xform" 1 1 1 0 0 0 0 0 -4 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 1
		0 0 0 1 1 1 1 yes;
	setAttr ".xm[1]" -type "matrix" "xform" 1 1 1 0 0 0 0 0 4 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 1 0
		0 0 1 1 1 1 yes;
	setAttr ".xm[2]" -type "matrix" "xform" 1 1 1 0 0 0 0 0 2.7000000000000002 0 0 0 0 0 0 0 0 0 0 0 0
		0 0 0 0 0 0 0 1 0 0 0 1 1 1 1 yes;
	setAttr ".xm[3]" -type "matrix" "xform" 1 1 1 0 0 0 0 0 1.2999999999999998 0 0 0 0 0 0 0 0 0 0 0 0
		0 0 0 0 0 0 0 1 0 0 0 1 1 1 1 yes;
	setAttr ".bp" yes;
createNode dagPose -n "bindPose2";
	setAttr -s 3 ".m";
	setAttr -s 3 ".p";
	setAttr -s 3 ".wm";
	setAttr -s 3 ".xm";
	setAttr ".xm[0]" -type "matrix" "xform" 1 1 1 0 0 0 0 0 -4 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 1
		0 0 0 1 1 1 1 yes;
	setAttr ".xm[1]" -type "matrix" "xform" 1 1 1 0 0 0 0 0 4 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 1 0
		0 0 1 1 1 1 yes;
	setAttr ".xm[2]" -type "matrix" "xform" 1 1 1 0 0 0 0 0 0 -1 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 1
		0 0 0 1 1 1 1 yes;
	setAttr ".bp" yes;
select -ne :initialShadingGroup;
connectAttr "armSkinGroupId.id" "armShape.iog.og[0].gid";
connectAttr "groupId2.id" "armShape.iog.og[1].gid";
connectAttr "armSkinSet.mwc" "armShape.iog.og[0].gco";
connectAttr "tweakSet1.mwc" "armShape.iog.og[1].gco";
connectAttr "tweak1.vl[0].vt[0]" "armShape.twl";
connectAttr "armSkin.og[0]" "armShape.i";
connectAttr "shoulder.s" "elbow.is";
connectAttr "elbow.s" "wrist.is";
connectAttr "wrist.s" "fingers.is";
connectAttr "elbow.s" "elbowHelper.is";
connectAttr "armSkinGroupParts.og" "armSkin.ip[0].ig";
connectAttr "armSkinGroupId.id" "armSkin.ip[0].gi";
connectAttr "shoulder.wm" "armSkin.ma[0]";
connectAttr "elbow.wm" "armSkin.ma[1]";
connectAttr "wrist.wm" "armSkin.ma[2]";
connectAttr "fingers.wm" "armSkin.ma[3]";
connectAttr "elbowHelper.wm" "armSkin.ma[4]";
connectAttr "shoulder.liw" "armSkin.lw[0]";
connectAttr "elbow.liw" "armSkin.lw[1]";
connectAttr "wrist.liw" "armSkin.lw[2]";
connectAttr "fingers.liw" "armSkin.lw[3]";
connectAttr "elbowHelper.liw" "armSkin.lw[4]";
connectAttr "bindPose1.msg" "armSkin.bp";
connectAttr "shoulder.obcc" "armSkin.ifcl[0]";
connectAttr "elbow.obcc" "armSkin.ifcl[1]";
connectAttr "wrist.obcc" "armSkin.ifcl[2]";
connectAttr "fingers.obcc" "armSkin.ifcl[3]";
connectAttr "elbowHelper.obcc" "armSkin.ifcl[4]";
connectAttr "armShape.iog.og[0]" "armSkinSet.dsm" -na;
connectAttr "armSkinGroupId.msg" "armSkinSet.gn" -na;
connectAttr "armSkin.msg" "armSkinSet.ub[0]";
connectAttr "tweak1.og[0]" "armSkinGroupParts.ig";
connectAttr "armSkinGroupId.id" "armSkinGroupParts.gi";
connectAttr "groupParts2.og" "tweak1.ip[0].ig";
connectAttr "groupId2.id" "tweak1.ip[0].gi";
connectAttr "armShape.iog.og[1]" "tweakSet1.dsm" -na;
connectAttr "groupId2.msg" "tweakSet1.gn" -na;
connectAttr "tweak1.msg" "tweakSet1.ub[0]";
connectAttr "armShapeOrig.w" "groupParts2.ig";
connectAttr "groupId2.id" "groupParts2.gi";
connectAttr "shoulder.msg" "bindPose1.m[0]";
connectAttr "elbow.msg" "bindPose1.m[1]";
connectAttr "wrist.msg" "bindPose1.m[2]";
connectAttr "fingers.msg" "bindPose1.m[3]";
connectAttr "bindPose1.w" "bindPose1.p[0]";
connectAttr "bindPose1.m[0]" "bindPose1.p[1]";
connectAttr "bindPose1.m[1]" "bindPose1.p[2]";
connectAttr "bindPose1.m[2]" "bindPose1.p[3]";
connectAttr "shoulder.bps" "bindPose1.wm[0]";
connectAttr "elbow.bps" "bindPose1.wm[1]";
connectAttr "wrist.bps" "bindPose1.wm[2]";
connectAttr "fingers.bps" "bindPose1.wm[3]";
connectAttr "shoulder.msg" "bindPose2.m[0]";
connectAttr "elbow.msg" "bindPose2.m[1]";
connectAttr "elbowHelper.msg" "bindPose2.m[2]";
connectAttr "bindPose2.w" "bindPose2.p[0]";
connectAttr "bindPose2.m[0]" "bindPose2.p[1]";
connectAttr "bindPose2.m[1]" "bindPose2.p[2]";
connectAttr "shoulder.bps" "bindPose2.wm[0]";
connectAttr "elbow.bps" "bindPose2.wm[1]";
connectAttr "elbowHelper.bps" "bindPose2.wm[2]";
connectAttr "armShape.iog" ":initialShadingGroup.dsm" -na;
// End of bent_arm.ma
