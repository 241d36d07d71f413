#pragma once

/// In 3ds Max these classes live on the host's heap; the embedded host shares one heap with its modules.
class MaxHeapOperators {};
