#pragma once

struct NotifyInfo {
  int intcode;
  /// What it points to depends on the code; null for most.
  void* callParam;
};

using NOTIFYPROC = void (*)(void* param, NotifyInfo* info);

constexpr int NOTIFY_SYSTEM_PRE_RESET = 5;
constexpr int NOTIFY_SYSTEM_POST_RESET = 6;
constexpr int NOTIFY_SYSTEM_PRE_NEW = 7;
constexpr int NOTIFY_SYSTEM_POST_NEW = 8;
/// callParam leads to a FileIOType.
constexpr int NOTIFY_FILE_PRE_OPEN = 9;
constexpr int NOTIFY_FILE_POST_OPEN = 10;
constexpr int NOTIFY_FILE_OPEN_FAILED = 15;
/// callParam is the INode itself for these three.
constexpr int NOTIFY_NODE_POST_MTL = 66;
constexpr int NOTIFY_SCENE_ADDED_NODE = 67;
constexpr int NOTIFY_SCENE_PRE_DELETED_NODE = 68;
constexpr int NOTIFY_SCENE_POST_DELETED_NODE = 69;

enum FileIOType { IOTYPE_MAX = 0, IOTYPE_MATLIB = 1, IOTYPE_RENDER_PRESETS = 2 };

/// Non-zero on success. The same triple registered twice is called twice; callbacks run in order of registration.
int RegisterNotification(NOTIFYPROC proc, void* param, int code);
int UnRegisterNotification(NOTIFYPROC proc, void* param, int code);
void BroadcastNotification(int code);
void BroadcastNotification(int code, void* callParam);
