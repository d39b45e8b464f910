// The numbers of the dialog templates and of their controls.
#pragma once

#define IDD_PROGRESS 1001
#define IDC_PROGRESS_BAR 1001
#define IDC_TOTAL_LINE 1003
#define IDC_PARSING_LINE 1004
#define IDC_CANCEL_READING 4002
#define IDC_STATUS 8004

#define IDD_IMPORT 8000
#define IDC_LOAD_PATH 8001
#define IDC_STRUCTURE_PATH 8002
#define IDC_BROWSE_STRUCTURE 8003
#define IDC_BROWSE_LOAD 8004

#define IDC_UNNAMED -1
