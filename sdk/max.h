#pragma once

// The usual first include of a plug-in.

#include <box3.h>
#include <gup.h>
#include <hold.h>
#include <inode.h>
#include <ipoint2.h>
#include <maxapi.h>
#include <notify.h>
#include <plugapi.h>
#include <units.h>
