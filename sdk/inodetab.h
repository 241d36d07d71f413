#pragma once

#include <inode.h>
