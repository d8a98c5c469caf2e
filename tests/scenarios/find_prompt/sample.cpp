// third copy


