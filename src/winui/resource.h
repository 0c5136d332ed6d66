// The numbers of the Windows program's resources and of the controls in its dialog layouts. A control's
// number carries its documented name (IDC_cmdStart is cmdStart); an element of a control array counts on
// from its first element (IDC_opResolution_0 + 1 is opResolution_1).
#pragma once

#define IDI_PAVONEL 1
#define IDR_SAMPLE_PICTURE 2

// Windows.
#define IDD_frmMain 100
#define IDD_GamePage 101
#define IDD_ScenarioPage 102
#define IDD_DisplayPage 103
#define IDD_RefreshPage 104
#define IDD_ExtraPage 105
#define IDD_frmError 110
#define IDD_frmStartingTarvolin 111
#define IDD_frmEditProfile 112
#define IDD_frmLoadProfile 113
#define IDD_frmSave 114
#define IDD_frmProfiles 115
#define IDD_frmOptions 116
#define IDD_frmInfo 117
#define IDD_InfoPage_0 118
#define IDD_InfoPage_1 119
#define IDD_InfoPage_2 120
#define IDD_frmCreateTarvolinShortcut_New 130
#define IDD_picStep_0 131
#define IDD_picStep_1 132
#define IDD_picStep_2 133
#define IDD_picStep_3 134
#define IDD_picStep_4 135
#define IDD_picStep_5 136

// frmMain.
#define IDC_ucTab1_0 1000
#define IDC_Shape1 1010
#define IDC_lblVersion 1011
#define IDC_txtCommandLine 1012
#define IDC_cmdStart 1013

// The pages.
#define IDC_lblTarvoPath 1100
#define IDC_txtTarvolinPath 1101
#define IDC_cmdSelectTarvoPath 1102
#define IDC_ckLogMessages 1103
#define IDC_lblLogMsg 1104
#define IDC_ckFreeplay 1105
#define IDC_lblFreeplayMode_Desc 1106
#define IDC_cmdLogfile2 1107
#define IDC_lblScenarios 1110
#define IDC_txtScenario 1111
#define IDC_lblScenarioInfo 1112
#define IDC_lblGraphicPak 1113
#define IDC_txtGraphicPack 1114
#define IDC_lblGraphicPakInfo 1115
#define IDC_frmResolution 1120
#define IDC_opResolution_0 1121
#define IDC_lstResolution 1123
#define IDC_lblwidth_heigth 1124
#define IDC_txtRes_Width 1125
#define IDC_lblTimes 1126
#define IDC_txtRes_Height 1127
#define IDC_UserControl11 1128
#define IDC_lblResolution_Warning 1129
#define IDC_frmScreenRefresh 1130
#define IDC_lstRefresh 1131
#define IDC_frmOpenTarvoFolder 1140
#define IDC_lblOpenTarvoFolder 1141
#define IDC_cmdOpenTarvoDir 1142
#define IDC_frmOpenLogfile 1143
#define IDC_lblOpenLogfileDesc 1144
#define IDC_cmdLogfile 1145

// The dialogs' shared buttons, numbered as the system numbers OK and Cancel, so Enter and Escape press them.
#define IDC_cmdOk 1
#define IDC_cmdCancel 2

// frmMain's menu entries; the built menus count on from their first item.
#define IDM_mnuFile_Save 2000
#define IDM_mnuFile_Quit 2001
#define IDM_mnuProfile_New 2002
#define IDM_mnuProfile_Edit 2003
#define IDM_mnuProfil_Manager 2004
#define IDM_mnuEditCopy_CmdLine 2005
#define IDM_mnuExtra_Accessories_LanguageEditor 2006
#define IDM_mnuHelp_FAQ 2007
#define IDM_mnuHelp_FAQ_EN 2008
#define IDM_mnuHelp_Webpage 2009
#define IDM_mnuFile_SendFeedback 2010
#define IDM_mnuExtra_Options 2011
#define IDM_mnuHelp_About 2012
#define IDM_mnuFile_ImportProfile 2013
#define IDM_mnuFile_ExportProfile 2014
#define IDM_mnuProfile_Rename 2015
#define IDM_mnuProfile_Duplicate 2016
#define IDM_mnuProfile_Delete 2017
#define IDM_mnuEditCopy_Profile 2018
#define IDM_mnuEditPaste_Profile 2019
#define IDM_mnuExtra_CreateShortcut 2030
#define IDM_mnuOptions_Lang_Item_0 2100
#define IDM_mnuProfile_List_0 3000
#define IDM_mnuProfile_List_Last 9999

// The dialogs.
#define IDC_lblDescription 1200
#define IDC_txtDescription 1201
#define IDC_TabStrip1 1202
#define IDC_lblNote 1203
#define IDC_txtErrorNote 1204
#define IDC_cmdContact 1205
#define IDC_lblContactInfo 1206
#define IDC_lblAddress 1207
#define IDC_cmdDetails 1208
#define IDC_cmdCopy 1209
#define IDC_Command1 1210
#define IDC_Command2 1211
#define IDC_cmdClose 1212
#define IDC_lblCaption 1220
#define IDC_lblInfo 1221
#define IDC_lblWarning 1222
#define IDC_ckDontShowThisDialogAgain 1223
#define IDC_lblName 1230
#define IDC_txtName 1231
#define IDC_lblDesc 1232
#define IDC_txtProfileDescription 1233
#define IDC_cmdHelp 1240
#define IDC_ucProfiles1 1241
#define IDC_lblListTitle 1242
#define IDC_lblListInfo 1243
#define IDC_cmdRename 1244
#define IDC_cmdDuplicate 1245
#define IDC_cmdDelete 1246
#define IDC_lblEditor 1250
#define IDC_txtEditorPath 1251
#define IDC_cmdEditorPath 1252
#define IDC_ckSafetyPromptBeforeStartOfTarvolin 1253
#define IDC_ucTab2_0 1260
#define IDC_Shape2 1265
#define IDC_lblProgram 1266
#define IDC_lblCredits 1267
#define IDC_lblWebpage 1268
#define IDC_lblWebpageLink 1269
#define IDC_lblEmail 1270
#define IDC_lblEmailLink 1271

// The shortcut wizard: its title band, its button bar (Cancel is the shared one) and its six pages.
#define IDC_lblStep 1300
#define IDC_lblStepDesc 1301
#define IDC_lblStepTask 1302
#define IDC_TitleArea_Shape1 1303
#define IDC_TitleArea_Line1 1304
#define IDC_Nav_Line1 1310
#define IDC_cmdNext 1311
#define IDC_cmdBack 1312
#define IDC_Nav_Line2 1313
#define IDC_lblWizardInfo 1320
#define IDC_lblShortcutTo 1321
#define IDC_txtDest 1322
#define IDC_cmdSelLinkDestFolder 1323
#define IDC_opMode_0 1324
#define IDC_lblSettingsInfo 1326
#define IDC_txtSettings 1327
#define IDC_opDest_0 1330
#define IDC_lblShortcutFolder 1334
#define IDC_txtDestFolder 1335
#define IDC_cmdSelFolder 1336
#define IDC_lblShortcutName 1337
#define IDC_txtLinkName 1338
#define IDC_lblShortcutNameExample 1339
#define IDC_lblFinished 1340
#define IDC_ckCreateFurtherShortcut 1341
