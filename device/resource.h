/* Resources of the shell program. Icons carry the launcher's numbers, from 100 up. */
#pragma once

#define IDR_SHELL_KEYS 300
#define IDR_ZONES 301

#define ID_LEFT_KEY 40001
#define ID_RIGHT_KEY 40002
