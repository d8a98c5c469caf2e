// found
